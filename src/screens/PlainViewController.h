#pragma once

#include "screens/ScreenModel.h"

namespace vidora {

/// A screen that only says something.
class PlainViewController final : public ScreenModel
{
public:
    /// Both are English keys of the translation.
    PlainViewController(const char* title, const char* text)
        : m_title(title)
        , m_text(text)
    {
    }

    QString title() const override { return localized(m_title); }
    QString placeholder() const override { return localized(m_text); }
    std::size_t numberOfRowsInSection(std::size_t) const override { return 0; }
    ScreenRow rowAt(RowPath) const override { return {}; }

private:
    const char* m_title;
    const char* m_text;
};

} // namespace vidora
