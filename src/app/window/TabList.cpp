#include "app/window/TabList.h"

#include <algorithm>

namespace vidora {

namespace {

bool isIn(const std::vector<TabList::Tab>& tabs, const QString& name)
{
    return std::any_of(tabs.begin(), tabs.end(), [&](const TabList::Tab& tab) { return tab.name == name; });
}

} // namespace

void TabList::follow(const std::vector<Tab>& tabs)
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (isIn(tabs, m_tabs[static_cast<std::size_t>(row)].name))
            continue;
        beginRemoveRows({}, row, row);
        m_tabs.erase(m_tabs.begin() + row);
        endRemoveRows();
    }
    for (int row = 0; row < static_cast<int>(tabs.size()); ++row) {
        const Tab& tab = tabs[static_cast<std::size_t>(row)];
        if (!isIn(m_tabs, tab.name)) {
            beginInsertRows({}, row, row);
            m_tabs.insert(m_tabs.begin() + row, tab);
            endInsertRows();
        } else if (Tab& present = m_tabs[static_cast<std::size_t>(row)]; present != tab) {
            present = tab;
            Q_EMIT dataChanged(index(row), index(row));
        }
    }
}

int TabList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tabs.size());
}

QVariant TabList::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Tab& tab = m_tabs[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TitleRole:
        return tab.title;
    case SymbolRole:
        return tab.name;
    case BadgeRole:
        return tab.badge.value_or(QString());
    case EnabledRole:
        return tab.enabled;
    default:
        return {};
    }
}

QHash<int, QByteArray> TabList::roleNames() const
{
    return {{TitleRole, "title"}, {SymbolRole, "symbol"}, {BadgeRole, "badge"}, {EnabledRole, "enabled"}};
}

} // namespace vidora
