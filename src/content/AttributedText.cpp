#include "content/AttributedText.h"

namespace vidora {

AttributedText::AttributedText(QString plain)
{
    append(std::move(plain), {});
}

// Neighbours alike are one run, so that equal texts compare equal however they were put together.
void AttributedText::append(QString text, TextAttributes attributes)
{
    if (text.isEmpty())
        return;
    if (!m_runs.empty() && m_runs.back().attributes == attributes)
        m_runs.back().text += text;
    else
        m_runs.push_back({std::move(text), std::move(attributes)});
}

QString AttributedText::string() const
{
    if (m_runs.size() == 1)
        return m_runs.front().text;
    QString text;
    for (const Run& run : m_runs)
        text += run.text;
    return text;
}

bool AttributedText::isPlain() const
{
    return m_runs.empty() || (m_runs.size() == 1 && m_runs.front().attributes == TextAttributes{});
}

bool AttributedText::isEmpty() const
{
    return m_runs.empty();
}

} // namespace vidora
