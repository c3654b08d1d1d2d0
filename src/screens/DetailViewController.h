#pragma once

#include "screens/ScreenModel.h"

namespace vidora {

/// What the lists hold of one show: title, time, and the texts of its schedule line and of its page.
class DetailViewController final : public ScreenModel
{
public:
    DetailViewController(Show show, QString channelIconName);

    QString title() const override;
    std::size_t numberOfRowsInSection(std::size_t) const override { return m_texts.size(); }
    ScreenRow rowAt(RowPath path) const override;

    const Show& show() const { return m_show; }
    const QString& channelIconName() const { return m_channelIconName; }

private:
    const Show m_show;
    const QString m_channelIconName;
    std::vector<AttributedText> m_texts;
};

} // namespace vidora
