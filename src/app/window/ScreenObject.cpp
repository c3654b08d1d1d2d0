#include "app/window/ScreenObject.h"

#include <algorithm>
#include <utility>

namespace vidora {

namespace {

QString symbolOf(BarButton::Kind kind)
{
    switch (kind) {
    case BarButton::Kind::Play:
        return QStringLiteral("play");
    case BarButton::Kind::Refresh:
        return QStringLiteral("refresh");
    case BarButton::Kind::Add:
        return QStringLiteral("add");
    case BarButton::Kind::Settings:
        return QStringLiteral("settings");
    case BarButton::Kind::Trash:
        return QStringLiteral("trash");
    case BarButton::Kind::List:
        return QStringLiteral("channels");
    case BarButton::Kind::Text:
    case BarButton::Kind::Done:
    case BarButton::Kind::Activity:
        break;
    }
    return {};
}

} // namespace

ScreenObject::ScreenObject(std::shared_ptr<ScreenModel> screen, bool isRoot)
    : m_rows(std::move(screen))
    , m_isRoot(isRoot)
{
    m_rows.onSurroundingsChanged = [this] { Q_EMIT surroundingsChanged(); };
    connect(&m_rows, &QAbstractItemModel::modelReset, this, &ScreenObject::rowsChanged);
    connect(&m_rows, &QAbstractItemModel::modelReset, this, &ScreenObject::rowsAreOthers);
    connect(&m_rows, &QAbstractItemModel::dataChanged, this, &ScreenObject::rowsAreOthers);
    connect(&m_rows, &QAbstractItemModel::rowsInserted, this, &ScreenObject::rowsAreOthers);
    connect(&m_rows, &QAbstractItemModel::rowsRemoved, this, &ScreenObject::rowsAreOthers);
}

QVariantList ScreenObject::barButtons() const
{
    QVariantList buttons;
    for (const BarButton& button : screen().rightBarButtonItems()) {
        buttons.prepend(QVariantMap{{QStringLiteral("title"), button.title},
                                    {QStringLiteral("description"), button.description},
                                    {QStringLiteral("symbol"), symbolOf(button.kind)},
                                    {QStringLiteral("busy"), button.kind == BarButton::Kind::Activity},
                                    {QStringLiteral("prominent"), button.kind == BarButton::Kind::Done}});
    }
    return buttons;
}

void ScreenObject::pressBarButton(int index)
{
    const std::vector<BarButton> buttons = screen().rightBarButtonItems();
    const auto fromRight = static_cast<qsizetype>(buttons.size()) - 1 - index;
    if (fromRight < 0 || fromRight >= static_cast<qsizetype>(buttons.size()))
        return;
    if (const auto& action = buttons[static_cast<std::size_t>(fromRight)].action)
        action();
}

QStringList ScreenObject::sectionIndexTitles() const
{
    QStringList titles;
    if (screen().hasSectionIndex()) {
        for (std::size_t section = 0; section < screen().numberOfSections(); ++section)
            titles << screen().titleForHeaderInSection(section);
    }
    return titles;
}

void ScreenObject::setVisible(bool visible)
{
    if (visible == m_isVisible)
        return;
    m_isVisible = visible;
    if (!visible)
        m_lastInSight = -1;
    Q_EMIT visibleChanged();
}

void ScreenObject::setSearchText(const QString& text)
{
    if (searchable() && text != searchText())
        screen().setSearchText(text);
}

void ScreenObject::select(int row)
{
    if (isRow(row))
        screen().selectRow(m_rows.pathOf(row));
}

void ScreenObject::pressAccessory(int row)
{
    if (isRow(row))
        screen().accessoryTapped(m_rows.pathOf(row));
}

void ScreenObject::removeRow(int row)
{
    if (isRow(row) && m_rows.index(row, 0).data(ScreenItemModel::DeletableRole).toBool())
        screen().deleteRow(m_rows.pathOf(row));
}

void ScreenObject::moveRow(int from, int to)
{
    const auto isMovable = [this](int row) {
        return isRow(row) && m_rows.index(row, 0).data(ScreenItemModel::MovableRole).toBool();
    };
    if (from != to && isMovable(from) && isMovable(to))
        screen().moveRow(m_rows.pathOf(from), m_rows.pathOf(to));
}

void ScreenObject::refresh()
{
    if (refreshable() && !refreshing())
        screen().refresh();
}

void ScreenObject::rowsInSight(int first, int last)
{
    const int firstBefore = std::exchange(m_firstInSight, first), lastBefore = std::exchange(m_lastInSight, last);
    displayed(first, std::min(last, firstBefore - 1));
    displayed(std::max(first, lastBefore + 1), last);
}

void ScreenObject::displayed(int first, int last)
{
    for (int row = std::max(first, 0); row <= last && isRow(row); ++row)
        screen().rowDisplayed(m_rows.pathOf(row));
}

/// Not within the change itself, which may be one of many.
void ScreenObject::rowsAreOthers()
{
    if (std::exchange(m_tellsAgain, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_tellsAgain = false;
            displayed(m_firstInSight, m_lastInSight);
        },
        Qt::QueuedConnection);
}

QVariantList ScreenObject::swipeActions(int row)
{
    QVariantList list;
    if (isRow(row) && m_rows.index(row, 0).data(ScreenItemModel::SwipeableRole).toBool()) {
        for (const SwipeAction& action : screen().swipeActions(m_rows.pathOf(row)))
            list << QVariantMap{{QStringLiteral("title"), action.title},
                                {QStringLiteral("description"), action.description},
                                {QStringLiteral("destructive"), action.destructive},
                                {QStringLiteral("colour"), action.colour}};
    }
    return list;
}

void ScreenObject::performSwipe(int row, int action)
{
    if (!isRow(row))
        return;
    const std::vector<SwipeAction> actions = screen().swipeActions(m_rows.pathOf(row));
    const auto index = static_cast<std::size_t>(action);
    if (action >= 0 && index < actions.size() && actions[index].perform)
        actions[index].perform();
}

} // namespace vidora
