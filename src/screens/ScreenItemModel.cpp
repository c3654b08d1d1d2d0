#include "screens/ScreenItemModel.h"

#include <QUrl>

#include <algorithm>
#include <iterator>

namespace vidora {

namespace {

const QHash<int, QByteArray>& roles()
{
    static const QHash<int, QByteArray> names{{ScreenItemModel::KindRole, "kind"},
                                              {ScreenItemModel::SectionRole, "section"},
                                              {ScreenItemModel::RowRole, "row"},
                                              {ScreenItemModel::SectionTitleRole, "sectionTitle"},
                                              {ScreenItemModel::TextRole, "text"},
                                              {ScreenItemModel::RichTextRole, "richText"},
                                              {ScreenItemModel::SubtitleRole, "subtitle"},
                                              {ScreenItemModel::SubtitleColourRole, "subtitleColour"},
                                              {ScreenItemModel::BackgroundColourRole, "backgroundColour"},
                                              {ScreenItemModel::IconRole, "icon"},
                                              {ScreenItemModel::StartRole, "start"},
                                              {ScreenItemModel::EndRole, "end"},
                                              {ScreenItemModel::TitleRole, "title"},
                                              {ScreenItemModel::DetailsRole, "details"},
                                              {ScreenItemModel::TimeColourRole, "timeColour"},
                                              {ScreenItemModel::OnAirRole, "onAir"},
                                              {ScreenItemModel::AlarmRole, "alarm"},
                                              {ScreenItemModel::FavouriteRole, "favourite"},
                                              {ScreenItemModel::RepeatRole, "repeat"},
                                              {ScreenItemModel::PopularRole, "popular"},
                                              {ScreenItemModel::ProgressRole, "progress"},
                                              {ScreenItemModel::TimeLeftRole, "timeLeft"},
                                              {ScreenItemModel::PictureRole, "picture"},
                                              {ScreenItemModel::HasPictureRole, "hasPicture"},
                                              {ScreenItemModel::AccessoryRole, "accessory"},
                                              {ScreenItemModel::SelectableRole, "selectable"},
                                              {ScreenItemModel::SwipeableRole, "swipeable"},
                                              {ScreenItemModel::DeletableRole, "deletable"},
                                              {ScreenItemModel::MovableRole, "movable"}};
    return names;
}

QString nameOf(ScreenRow::Kind kind)
{
    switch (kind) {
    case ScreenRow::Kind::Header:
        return QStringLiteral("header");
    case ScreenRow::Kind::Broadcast:
        return QStringLiteral("show");
    case ScreenRow::Kind::Channel:
        return QStringLiteral("channel");
    case ScreenRow::Kind::Text:
        break;
    }
    return QStringLiteral("text");
}

QString nameOf(Accessory accessory)
{
    switch (accessory) {
    case Accessory::Disclosure:
        return QStringLiteral("disclosure");
    case Accessory::Activity:
        return QStringLiteral("activity");
    case Accessory::Play:
        return QStringLiteral("play");
    case Accessory::Retry:
        return QStringLiteral("retry");
    case Accessory::Checkmark:
        return QStringLiteral("checkmark");
    case Accessory::None:
        break;
    }
    return QStringLiteral("none");
}

} // namespace

ScreenItemModel::ScreenItemModel(std::shared_ptr<ScreenModel> screen, QObject* parent)
    : QAbstractListModel(parent)
    , m_screen(std::move(screen))
{
    m_screen->setView(this);
    countRows();
}

ScreenItemModel::~ScreenItemModel()
{
    m_screen->removeView(this);
}

std::vector<int> ScreenItemModel::sectionStarts() const
{
    std::vector<int> starts{0};
    for (std::size_t section = 0; section < m_screen->numberOfSections(); ++section)
        starts.push_back(starts.back() + static_cast<int>(m_screen->numberOfRowsInSection(section)));
    return starts;
}

void ScreenItemModel::countRows()
{
    m_sectionStarts = sectionStarts();
    m_rows.clear();
    m_rows.resize(static_cast<std::size_t>(m_sectionStarts.back()));
}

void ScreenItemModel::shiftSectionsBehind(std::size_t section, int by)
{
    std::for_each(m_sectionStarts.begin() + static_cast<std::ptrdiff_t>(section) + 1, m_sectionStarts.end(),
                  [by](int& start) { start += by; });
}

RowPath ScreenItemModel::pathOf(int row) const
{
    const auto behind = std::upper_bound(m_sectionStarts.begin(), m_sectionStarts.end(), row);
    const auto start = std::prev(behind);
    return {static_cast<std::size_t>(start - m_sectionStarts.begin()), static_cast<std::size_t>(row - *start)};
}

int ScreenItemModel::flatRow(std::size_t section, std::size_t row) const
{
    return m_sectionStarts[section] + static_cast<int>(row);
}

int ScreenItemModel::firstRowOfSection(int section) const
{
    const auto index = static_cast<std::size_t>(section);
    if (section < 0 || index + 1 >= m_sectionStarts.size() || m_sectionStarts[index] == m_sectionStarts[index + 1])
        return -1;
    return m_sectionStarts[index];
}

void ScreenItemModel::setStyle(RichTextStyle style)
{
    m_style = std::move(style);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {RichTextRole});
}

int ScreenItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QHash<int, QByteArray> ScreenItemModel::roleNames() const
{
    return roles();
}

QVariant ScreenItemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return value(rowAt(index.row()), index.row(), role);
}

const ScreenRow& ScreenItemModel::rowAt(int row) const
{
    std::unique_ptr<const ScreenRow>& kept = m_rows[static_cast<std::size_t>(row)];
    if (!kept)
        kept = std::make_unique<const ScreenRow>(m_screen->rowAt(pathOf(row)));
    return *kept;
}

QVariant ScreenItemModel::value(const ScreenRow& row, int flat, int role) const
{
    switch (role) {
    case KindRole:
        return nameOf(row.kind);
    case SectionRole:
        return static_cast<int>(pathOf(flat).section);
    case RowRole:
        return static_cast<int>(pathOf(flat).row);
    case SectionTitleRole:
        return m_screen->titleForHeaderInSection(pathOf(flat).section);
    case Qt::DisplayRole:
    case TextRole:
        return plainText(row.text.string());
    case RichTextRole:
        return richText(row.text, m_style);
    case SubtitleRole:
        return plainText(row.subtitle.string());
    case SubtitleColourRole:
        return QString(colour::secondaryLabel);
    case BackgroundColourRole:
        return row.backgroundColour;
    case IconRole:
        return row.icon.isEmpty() ? QUrl() : QUrl::fromLocalFile(row.icon);
    case PictureRole:
        return row.picture.width > 0 ? row.picture.source : QString();
    case HasPictureRole:
        return row.hasPicture;
    case AccessoryRole:
        return nameOf(row.accessory);
    case SelectableRole:
        return row.selectable;
    case SwipeableRole:
        return row.swipeable;
    case DeletableRole:
        return row.deletable;
    case MovableRole:
        return row.movable;
    default:
        return broadcastValue(row.columns.value_or(BroadcastColumns()), role);
    }
}

QVariant ScreenItemModel::broadcastValue(const BroadcastColumns& columns, int role)
{
    switch (role) {
    case StartRole:
        return columns.start;
    case EndRole:
        return columns.end;
    case TitleRole:
        return plainText(columns.title).replace(QLatin1Char('\n'), QLatin1Char(' '));
    case DetailsRole:
        return plainText(columns.details).replace(QLatin1Char('\n'), QLatin1Char(' '));
    case TimeColourRole:
        return columns.timeColour;
    case OnAirRole:
        return columns.progress.has_value();
    case AlarmRole:
        return columns.hasAlarm;
    case FavouriteRole:
        return columns.isFavourite;
    case RepeatRole:
        return columns.isRepeat;
    case PopularRole:
        return columns.isPopular;
    case ProgressRole:
        return columns.progress.value_or(-1);
    case TimeLeftRole:
        return columns.progress ? localized("%1 min left").arg(std::max(columns.minutesLeft, 0)) : QString();
    default:
        return {};
    }
}

void ScreenItemModel::reloadBegins() {}

// A view that is told of a reset goes back to its beginning. Where all rows have kept their places, it need not.
void ScreenItemModel::reloadEnded()
{
    if (m_sectionStarts == sectionStarts() && !m_rows.empty() && !m_screen->hasSectionIndex()) {
        countRows();
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    countRows();
    endResetModel();
}

void ScreenItemModel::insertionBegins(std::size_t section, std::size_t first, std::size_t count)
{
    const int row = flatRow(section, first);
    m_change = {section, row, static_cast<int>(count)};
    beginInsertRows({}, row, row + m_change.count - 1);
}

void ScreenItemModel::insertionEnded()
{
    std::vector<std::unique_ptr<const ScreenRow>> added(static_cast<std::size_t>(m_change.count));
    m_rows.insert(m_rows.begin() + m_change.row, std::make_move_iterator(added.begin()),
                  std::make_move_iterator(added.end()));
    shiftSectionsBehind(m_change.section, m_change.count);
    endInsertRows();
}

void ScreenItemModel::removalBegins(std::size_t section, std::size_t first, std::size_t count)
{
    const int row = flatRow(section, first);
    m_change = {section, row, static_cast<int>(count)};
    beginRemoveRows({}, row, row + m_change.count - 1);
}

void ScreenItemModel::removalEnded()
{
    m_rows.erase(m_rows.begin() + m_change.row, m_rows.begin() + m_change.row + m_change.count);
    shiftSectionsBehind(m_change.section, -m_change.count);
    endRemoveRows();
}

void ScreenItemModel::moveBegins(RowPath from, RowPath to)
{
    const int row = flatRow(from.section, from.row);
    // Qt counts the destination with the row still in its place.
    const int destination = flatRow(to.section, to.row) + (to.row > from.row ? 1 : 0);
    m_moves = beginMoveRows({}, row, row, {}, destination);
}

void ScreenItemModel::moveEnded()
{
    countRows();
    if (m_moves)
        endMoveRows();
}

void ScreenItemModel::rowsChanged(std::size_t section, std::size_t first, std::size_t count)
{
    const int row = flatRow(section, first);
    const int last = row + static_cast<int>(count) - 1;
    std::for_each(m_rows.begin() + row, m_rows.begin() + last + 1, [](auto& kept) { kept.reset(); });
    Q_EMIT dataChanged(index(row), index(last));
}

void ScreenItemModel::surroundingsChanged()
{
    if (onSurroundingsChanged)
        onSurroundingsChanged();
}

} // namespace vidora
