#include "screens/DetailViewController.h"

#include "content/TVEntry.h"
#include "content/TVEntrySupplementalData.h"
#include "store/LocalDays.h"

namespace vidora {

namespace {

template<typename Text>
void addText(std::vector<AttributedText>& texts, const std::optional<Text>& text)
{
    if (text && !text->isEmpty())
        texts.emplace_back(*text);
}

} // namespace

DetailViewController::DetailViewController(Show show, QString channelIconName)
    : m_show(std::move(show))
    , m_channelIconName(std::move(channelIconName))
{
    const TVEntry& entry = *m_show->entry;
    m_texts.push_back(entry.humanWithColor(colour::label, false));
    if (entry.dateTime())
        addText(m_texts, std::optional(LocalDays().dayKey(*entry.dateTime())));
    addText(m_texts, entry.fullInstantDetails());
    const TVEntrySupplementalData* extra = m_show->extra.get();
    if (!extra)
        return;
    addText(m_texts, extra->description);
    addText(m_texts, extra->episodeDescription);
    addText(m_texts, extra->details);
    addText(m_texts, extra->directedBy);
    addText(m_texts, extra->roles);
}

QString DetailViewController::title() const
{
    return m_show->entry->title().value_or(QString());
}

ScreenRow DetailViewController::rowAt(RowPath path) const
{
    ScreenRow row;
    row.text = m_texts[path.row];
    row.selectable = false;
    return row;
}

} // namespace vidora
