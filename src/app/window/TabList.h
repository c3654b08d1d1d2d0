#pragma once

#include "screens/PersistentAdTabBarController.h"

#include <QAbstractListModel>

#include <vector>

namespace vidora {

/// The tabs of the window for QML: "title", "symbol", "badge", "enabled". A tab that stays keeps its row, so that what
/// shows it is not made anew. Main thread.
class TabList final : public QAbstractListModel
{
    Q_OBJECT

public:
    using Tab = PersistentAdTabBarController::Tab;
    enum Role
    {
        TitleRole = Qt::UserRole + 1,
        SymbolRole,
        BadgeRole,
        EnabledRole
    };

    /// Takes over which tabs there are. Those that were there before stand in the same order.
    void follow(const std::vector<Tab>& tabs);
    const std::vector<Tab>& tabs() const { return m_tabs; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Tab> m_tabs;
};

} // namespace vidora
