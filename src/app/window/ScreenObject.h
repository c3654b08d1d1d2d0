#pragma once

#include "screens/ScreenItemModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QVariant>

#include <memory>

namespace vidora {

/// One screen as QML sees it: its rows, and what stands around them. Main thread.
class ScreenObject final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY surroundingsChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY surroundingsChanged)
    Q_PROPERTY(bool showsUpdateState READ showsUpdateState CONSTANT)
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    /// Maps of "title", "description", "symbol" ("" for a text), "busy" and "prominent", in the order in which they
    /// stand from left to right.
    Q_PROPERTY(QVariantList barButtons READ barButtons NOTIFY surroundingsChanged)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY surroundingsChanged)
    Q_PROPERTY(bool refreshable READ refreshable NOTIFY surroundingsChanged)
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY surroundingsChanged)
    Q_PROPERTY(bool searchable READ searchable NOTIFY surroundingsChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY surroundingsChanged)
    /// What can be undone, in words; empty for nothing.
    Q_PROPERTY(QString undoText READ undoText NOTIFY surroundingsChanged)
    Q_PROPERTY(QStringList sectionIndexTitles READ sectionIndexTitles NOTIFY rowsChanged)
    Q_PROPERTY(bool root READ isRoot CONSTANT)
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)

public:
    /// `isRoot`: there is no screen to go back to.
    ScreenObject(std::shared_ptr<ScreenModel> screen, bool isRoot);

    QString title() const { return m_rows.screen().title(); }
    QString subtitle() const { return m_rows.screen().subtitle(); }
    bool showsUpdateState() const { return m_rows.screen().showsUpdateState(); }
    QAbstractItemModel* rows() { return &m_rows; }
    QVariantList barButtons() const;
    QString placeholder() const { return m_rows.screen().placeholder(); }
    bool refreshable() const { return m_rows.screen().canRefresh(); }
    bool refreshing() const { return m_rows.screen().isRefreshing(); }
    bool searchable() const { return m_rows.screen().searchText().has_value(); }
    QString searchText() const { return m_rows.screen().searchText().value_or(QString()); }
    QString undoText() const { return screen().undoText(); }
    QStringList sectionIndexTitles() const;
    bool isRoot() const { return m_isRoot; }
    bool isVisible() const { return m_isVisible; }

    ScreenModel& screen() const { return m_rows.screen(); }
    void setStyle(const RichTextStyle& style) { m_rows.setStyle(style); }
    void setVisible(bool visible);
    void setSearchText(const QString& text);

    // Rows are counted through all sections, as the list shows them. A row that isn't there is passed over: the list
    // may have changed between the touch and the call.
    Q_INVOKABLE void select(int row);
    Q_INVOKABLE void pressAccessory(int row);
    Q_INVOKABLE void removeRow(int row);
    Q_INVOKABLE void moveRow(int from, int to);
    Q_INVOKABLE void pressBarButton(int index);
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void undo() { screen().undo(); }
    Q_INVOKABLE int rowOfSection(int section) const { return m_rows.firstRowOfSection(section); }
    /// Which rows are in sight, the last included: pictures are fetched for them, now and when they have changed.
    Q_INVOKABLE void rowsInSight(int first, int last);
    /// What a swipe on the row uncovers: maps of "title", "description", "destructive" and "colour", the name of
    /// a role or empty.
    Q_INVOKABLE QVariantList swipeActions(int row);
    Q_INVOKABLE void performSwipe(int row, int action);

Q_SIGNALS:
    void surroundingsChanged();
    void rowsChanged();
    void visibleChanged();

private:
    void displayed(int first, int last);
    void rowsAreOthers();
    bool isRow(int row) const { return row >= 0 && row < m_rows.rowCount(); }

    ScreenItemModel m_rows;
    const bool m_isRoot;
    bool m_isVisible = false;
    int m_firstInSight = 0, m_lastInSight = -1;
    bool m_tellsAgain = false;
};

} // namespace vidora
