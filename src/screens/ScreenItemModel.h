#pragma once

#include "screens/RichText.h"
#include "screens/ScreenModel.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace vidora {

/// A screen as a flat list for item views: the rows of all sections one after the other. A view makes its headings of
/// the role "sectionTitle". Rows are asked for when a view does, and kept until they change.
///
/// Roles by name:
///
///     kind              "header", "show", "channel" or "text"
///     section, row      where the row stands in the screen
///     sectionTitle      heading of its section; empty for none
///     text              plain text without control characters; also the accessible name
///     richText          the same as rich text of Qt, everything from outside escaped; sizes and colours by
///     `RichTextStyle` subtitle          plain text; empty for none subtitleColour    name of a colour role
///     backgroundColour  name of a colour role
///     icon              address of a picture file; empty for none
///     start, end        times of day of a show; empty where they are not known
///     title, details    of a show: plain text without control characters, each one line
///     timeColour        name of a colour role, for the start
///     onAir, alarm, favourite, repeat, popular
///     progress          0 to 1 for a show on air, else -1
///     timeLeft          of a show on air, in words; else empty
///     picture           address of the show's picture; empty for none, or while it comes
///     hasPicture        a place is kept for one
///     accessory         "none", "disclosure", "activity", "play", "retry" or "checkmark"
///     selectable, swipeable, deletable, movable
class ScreenItemModel final : public QAbstractListModel, private ScreenView
{
public:
    enum Role
    {
        KindRole = Qt::UserRole + 1,
        SectionRole,
        RowRole,
        SectionTitleRole,
        TextRole,
        RichTextRole,
        SubtitleRole,
        SubtitleColourRole,
        BackgroundColourRole,
        IconRole,
        StartRole,
        EndRole,
        TitleRole,
        DetailsRole,
        TimeColourRole,
        OnAirRole,
        AlarmRole,
        FavouriteRole,
        RepeatRole,
        PopularRole,
        ProgressRole,
        TimeLeftRole,
        PictureRole,
        HasPictureRole,
        AccessoryRole,
        SelectableRole,
        SwipeableRole,
        DeletableRole,
        MovableRole
    };

    explicit ScreenItemModel(std::shared_ptr<ScreenModel> screen, QObject* parent = nullptr);
    ~ScreenItemModel() override;

    ScreenModel& screen() const { return *m_screen; }
    /// Where the row of the list stands in the screen.
    RowPath pathOf(int row) const;
    /// The first row of each section that has rows; -1 for one without.
    int firstRowOfSection(int section) const;
    /// Gives the colours and the scale of the rich texts. Shows all rows anew.
    void setStyle(RichTextStyle style);
    /// Called whenever anything around the rows has changed.
    std::function<void()> onSurroundingsChanged;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void reloadBegins() override;
    void reloadEnded() override;
    void insertionBegins(std::size_t section, std::size_t first, std::size_t count) override;
    void insertionEnded() override;
    void removalBegins(std::size_t section, std::size_t first, std::size_t count) override;
    void removalEnded() override;
    void moveBegins(RowPath from, RowPath to) override;
    void moveEnded() override;
    void rowsChanged(std::size_t section, std::size_t first, std::size_t count) override;
    void surroundingsChanged() override;

    struct Change
    {
        std::size_t section = 0;
        int row = 0, count = 0;
    };

    std::vector<int> sectionStarts() const;
    void countRows();
    void shiftSectionsBehind(std::size_t section, int by);
    int flatRow(std::size_t section, std::size_t row) const;
    const ScreenRow& rowAt(int row) const;
    QVariant value(const ScreenRow& row, int flat, int role) const;
    static QVariant broadcastValue(const BroadcastColumns& columns, int role);

    const std::shared_ptr<ScreenModel> m_screen;
    RichTextStyle m_style;
    std::vector<int> m_sectionStarts; ///< flat row of each section's first, and the count of all
    mutable std::vector<std::unique_ptr<const ScreenRow>> m_rows; ///< what was asked for since the last change
    bool m_moves = false;
    Change m_change; ///< between the two calls of an insertion or a removal
};

} // namespace vidora
