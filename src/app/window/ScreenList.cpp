#include "app/window/ScreenList.h"

#include <algorithm>

namespace vidora {

void ScreenList::follow(const std::vector<Stack>& stacks, const ScreenModel* visible)
{
    for (const Stack& stack : stacks) {
        for (const auto& screen : stack) {
            if (objectOf(screen.get()))
                continue;
            const int last = rowCount();
            beginInsertRows({}, last, last);
            m_screens.push_back(std::make_unique<ScreenObject>(screen, screen == stack.front()));
            m_screens.back()->setStyle(m_style);
            endInsertRows();
        }
    }
    ScreenObject* before = m_visible;
    m_visible = objectOf(visible);
    if (before && before != m_visible)
        before->setVisible(false);
    if (m_visible)
        m_visible->setVisible(true);
    dropAllBut(stacks);
}

void ScreenList::dropAllBut(const std::vector<Stack>& stacks)
{
    const auto isIn = [&](const ScreenModel& screen) {
        return std::any_of(stacks.begin(), stacks.end(), [&](const Stack& stack) {
            return std::any_of(stack.begin(), stack.end(), [&](const auto& kept) { return kept.get() == &screen; });
        });
    };
    for (int row = rowCount() - 1; row >= 0; --row) {
        const auto at = m_screens.begin() + row;
        if (isIn((*at)->screen()))
            continue;
        beginRemoveRows({}, row, row);
        // What asked for this may be a call out of the screen itself.
        at->release()->deleteLater();
        m_screens.erase(at);
        endRemoveRows();
    }
}

void ScreenList::setStyle(const RichTextStyle& style)
{
    m_style = style;
    for (const auto& screen : m_screens)
        screen->setStyle(style);
}

int ScreenList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_screens.size());
}

QVariant ScreenList::data(const QModelIndex& index, int role) const
{
    if (role != Qt::UserRole || !index.isValid() || index.row() >= rowCount())
        return {};
    return QVariant::fromValue<QObject*>(m_screens[static_cast<std::size_t>(index.row())].get());
}

ScreenObject* ScreenList::objectOf(const ScreenModel* screen) const
{
    const auto at = std::find_if(m_screens.begin(), m_screens.end(),
                                 [&](const auto& object) { return &object->screen() == screen; });
    return at == m_screens.end() ? nullptr : at->get();
}

} // namespace vidora
