#pragma once

#include "app/window/ScreenObject.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace vidora {

/// The screens that lie in the tabs' stacks, those out of sight included, so that each keeps its place and scrolling.
/// The one role, "screen", is a ScreenObject. Main thread.
class ScreenList final : public QAbstractListModel
{
    Q_OBJECT

public:
    using Stack = std::vector<std::shared_ptr<ScreenModel>>;

    /// Takes over which screens there are, stack by stack, and which of them is in sight.
    void follow(const std::vector<Stack>& stacks, const ScreenModel* visible);
    void setStyle(const RichTextStyle& style);
    /// The one in sight; null ahead of the first `follow`.
    ScreenObject* visible() const { return m_visible; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override { return {{Qt::UserRole, "screen"}}; }

private:
    void dropAllBut(const std::vector<Stack>& stacks);
    ScreenObject* objectOf(const ScreenModel* screen) const;

    std::vector<std::unique_ptr<ScreenObject>> m_screens;
    ScreenObject* m_visible = nullptr;
    RichTextStyle m_style;
};

} // namespace vidora
