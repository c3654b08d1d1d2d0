#pragma once

#include "content/AttributedText.h"
#include "content/ShowElement.h"
#include "core/ShowServices.h"
#include "platform/Localized.h"
#include "platform/ViewControllers.h"
#include "screens/ColourRoles.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace vidora {

/// What stands at the end of a row.
enum class Accessory
{
    None,
    Disclosure, ///< selecting the row leads on
    Activity,   ///< something is still being loaded
    Play,       ///< a button of its own: `accessoryTapped`
    Retry,      ///< the same, where nothing could be loaded
    Checkmark
};

/// A broadcast as a list shows it in columns. Texts are text, never markup.
struct BroadcastColumns
{
    QString start, end; ///< times of day as the reader writes them; empty where they are not known
    QString title;
    QString details; ///< one line below the title; may be empty
    QString timeColour = colour::secondaryLabel;
    std::optional<double> progress; ///< of a show on air, 0 to 1
    int minutesLeft = 0;            ///< of a show on air
    bool hasAlarm = false, isFavourite = false, isRepeat = false, isPopular = false;
};

/// A row as it is to be drawn. Texts that came from outside are text, never markup.
struct ScreenRow
{
    enum class Kind
    {
        Header,    ///< a channel above its shows: icon, name, "Updated ..."
        Broadcast, ///< start time and title, details below in smaller type
        Channel,   ///< a channel to be chosen or ordered: icon and name
        Text       ///< plain text
    };

    Kind kind = Kind::Text;
    AttributedText text;     ///< may hold line ends; as many lines as it needs
    AttributedText subtitle; ///< one line below the text, shrunk to fit; may be empty
    QString backgroundColour = colour::secondaryGroupedBackground;
    QString icon;                            ///< path of a picture file; empty for none
    std::optional<BroadcastColumns> columns; ///< of a show
    ShowImage picture;                       ///< beside a show; of width 0 for none
    bool hasPicture = false;                 ///< there is one, be it that it has not come yet
    Accessory accessory = Accessory::None;
    bool selectable = true; ///< highlights when it is touched; `select` may be called in any case
    bool swipeable = false; ///< `swipeActions` may be asked for
    bool deletable = false; ///< `deleteRow` may be called
    bool movable = false;   ///< `moveRow` may be called
    Show show;              ///< of a show row
};

struct RowPath
{
    std::size_t section = 0;
    std::size_t row = 0;
    friend bool operator==(const RowPath&, const RowPath&) = default;
};

/// A button at the right of the bar above a screen.
struct BarButton
{
    enum class Kind
    {
        Text,     ///< shows its title
        Activity, ///< turns; can't be pressed
        List,     ///< of the channels
        Play,
        Refresh,
        Add,
        Trash,
        Settings,
        Done ///< leaves the screen
    };

    Kind kind = Kind::Text;
    QString title; ///< also the name for those who do not see the picture
    std::function<void()> action;
    QString description{}; ///< what it does, where the title does not say so
    friend bool operator==(const BarButton& a, const BarButton& b) { return a.kind == b.kind && a.title == b.title; }
};

/// Who shows a screen and must know of its changes. Each change lies between two calls: in the first the screen is as
/// it was, in the second as it is now.
class ScreenView
{
public:
    virtual ~ScreenView() = default;
    virtual void reloadBegins() = 0;
    virtual void reloadEnded() = 0;
    virtual void insertionBegins(std::size_t section, std::size_t first, std::size_t count) = 0;
    virtual void insertionEnded() = 0;
    virtual void removalBegins(std::size_t section, std::size_t first, std::size_t count) = 0;
    virtual void removalEnded() = 0;
    /// `to` is the row's place once it is taken out of `from`; both in one section.
    virtual void moveBegins(RowPath from, RowPath to) = 0;
    virtual void moveEnded() = 0;
    /// These rows look different now.
    virtual void rowsChanged(std::size_t section, std::size_t first, std::size_t count) = 0;
    /// Anything around the rows: title, bar buttons, activity, placeholder, search text.
    virtual void surroundingsChanged() = 0;
};

/// Base of all screens: sections of rows with what belongs around them. Rows are made when they are asked for, from
/// what the screen holds, so that a screen of thousands costs what is seen of it. Main thread.
///
/// The window calls the four appearance operations as the screen comes and goes; the first `viewWillAppear` loads it.
class ScreenModel : public ViewController
{
public:
    /// Already in the user's language.
    virtual QString title() const = 0;
    /// A line below the title; may be empty.
    virtual QString subtitle() const { return {}; }
    /// Whether it is the place to say how old the lists are.
    virtual bool showsUpdateState() const { return false; }
    /// From the right edge inwards.
    virtual std::vector<BarButton> rightBarButtonItems() const { return {}; }
    /// A sentence to show where there are no rows.
    virtual QString placeholder() const { return {}; }

    virtual std::size_t numberOfSections() const { return 1; }
    virtual std::size_t numberOfRowsInSection(std::size_t section) const = 0;
    /// Heading of a section; empty for none.
    virtual QString titleForHeaderInSection(std::size_t section) const;
    /// Whether the headings are also to be offered as an index at the edge.
    virtual bool hasSectionIndex() const { return false; }
    /// The row as it is at this moment. The path must be one of a row.
    virtual ScreenRow rowAt(RowPath path) const = 0;

    virtual void selectRow(RowPath path);
    virtual void accessoryTapped(RowPath path);
    virtual std::vector<SwipeAction> swipeActions(RowPath path);
    virtual void deleteRow(RowPath path);
    /// `to` is the row's place once it is taken out of `from`.
    virtual void moveRow(RowPath from, RowPath to);

    /// What has just been done and can be undone for a while, in words; empty for nothing.
    virtual QString undoText() const { return {}; }
    virtual void undo() {}

    /// Whether the screen can be pulled to refresh it, and whether that is under way.
    virtual bool canRefresh() const { return false; }
    virtual bool isRefreshing() const { return false; }
    virtual void refresh() {}

    /// What is in the search field; nothing on a screen that has none.
    virtual std::optional<QString> searchText() const { return std::nullopt; }
    virtual void setSearchText(const QString& text);

    /// The row has come into sight: pictures are fetched for what is seen.
    virtual void rowDisplayed(RowPath path);

    /// A minute has passed, or the screen is in sight again: what depends on the present moment is looked at anew.
    virtual void timePassed() {}

    bool isViewLoaded() const { return m_isViewLoaded; }
    void viewWillAppear();
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear() {}
    virtual void viewDidDisappear() {}

    /// At most one, the last that was set; it outlives the screen or takes itself off.
    void setView(ScreenView* view) { m_view = view; }
    /// Nothing happens when another has taken its place.
    void removeView(const ScreenView* view)
    {
        if (m_view == view)
            m_view = nullptr;
    }

protected:
    virtual void viewDidLoad() {}
    virtual void willAppear() {}

    using Change = std::function<void()>;
    /// Each makes the change and tells the view of it.
    void reloadData(const Change& change);
    void reloadData();
    void insertRows(std::size_t section, std::size_t first, std::size_t count, const Change& change);
    void removeRows(std::size_t section, std::size_t first, std::size_t count, const Change& change);
    void relocateRow(RowPath from, RowPath to, const Change& change);
    void reloadRows(std::size_t section, std::size_t first, std::size_t count);
    void surroundingsChanged();

private:
    ScreenView* m_view = nullptr;
    bool m_isViewLoaded = false;
};

} // namespace vidora
