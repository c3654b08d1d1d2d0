#include "screens/ScreenModel.h"

namespace vidora {

QString ScreenModel::titleForHeaderInSection(std::size_t) const
{
    return {};
}

void ScreenModel::selectRow(RowPath) {}
void ScreenModel::accessoryTapped(RowPath) {}
void ScreenModel::deleteRow(RowPath) {}
void ScreenModel::moveRow(RowPath, RowPath) {}
void ScreenModel::setSearchText(const QString&) {}
void ScreenModel::rowDisplayed(RowPath) {}

std::vector<SwipeAction> ScreenModel::swipeActions(RowPath)
{
    return {};
}

void ScreenModel::viewWillAppear()
{
    if (!m_isViewLoaded) {
        m_isViewLoaded = true;
        viewDidLoad();
    }
    willAppear();
}

void ScreenModel::reloadData(const Change& change)
{
    if (m_view)
        m_view->reloadBegins();
    change();
    if (m_view)
        m_view->reloadEnded();
}

void ScreenModel::reloadData()
{
    reloadData([] {});
}

void ScreenModel::insertRows(std::size_t section, std::size_t first, std::size_t count, const Change& change)
{
    if (m_view)
        m_view->insertionBegins(section, first, count);
    change();
    if (m_view)
        m_view->insertionEnded();
}

void ScreenModel::removeRows(std::size_t section, std::size_t first, std::size_t count, const Change& change)
{
    if (m_view)
        m_view->removalBegins(section, first, count);
    change();
    if (m_view)
        m_view->removalEnded();
}

void ScreenModel::relocateRow(RowPath from, RowPath to, const Change& change)
{
    if (m_view)
        m_view->moveBegins(from, to);
    change();
    if (m_view)
        m_view->moveEnded();
}

void ScreenModel::reloadRows(std::size_t section, std::size_t first, std::size_t count)
{
    if (m_view && count > 0)
        m_view->rowsChanged(section, first, count);
}

void ScreenModel::surroundingsChanged()
{
    if (m_view)
        m_view->surroundingsChanged();
}

} // namespace vidora
