#include "screens/RichText.h"

#include "screens/ColourRoles.h"

namespace vidora {

namespace {

/// Embeddings, overrides and isolates (Unicode Standard Annex #9): what one of them opens, a text need not close.
bool turnsDirection(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

QString colourRole(const TextAttributes& attributes)
{
    using Colour = TextAttributes::Colour;
    switch (attributes.colour) {
    case Colour::Label:
        return colour::label;
    case Colour::SecondaryLabel:
        return colour::secondaryLabel;
    case Colour::LightGrey:
        return colour::lightGrey;
    case Colour::Given:
        return attributes.givenColour;
    case Colour::Inherited:
        break;
    }
    return {};
}

QString styleOf(const TextAttributes& attributes, const RichTextStyle& style)
{
    using Weight = TextAttributes::Weight;
    QString css;
    const double shrinking = attributes.baselineOffset > 0 ? 1.5 : 1; // Qt sets raised text in two thirds of its size
    if (attributes.pointSize > 0) // logical pixels of a phone are what its points are
        css += QStringLiteral("font-size:%1px;").arg(qRound(attributes.pointSize * style.scale * shrinking));
    if (attributes.weight != Weight::Regular)
        css += QStringLiteral("font-weight:%1;").arg(attributes.weight == Weight::Bold ? 700 : 600);
    const QString value = style.colours.value(colourRole(attributes));
    if (!value.isEmpty())
        css += QStringLiteral("color:%1;").arg(value);
    if (attributes.baselineOffset > 0)
        css += QLatin1String("vertical-align:super;");
    return css;
}

QString escaped(const QString& text)
{
    QString html = plainText(text).toHtmlEscaped();
    return html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

QString plainText(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            plain += character;
        else if (isControl(character) || character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            plain += QLatin1Char(' ');
        else if (!turnsDirection(character))
            plain += character;
    }
    return plain;
}

QString richText(const AttributedText& text, const RichTextStyle& style)
{
    QString html;
    for (const AttributedText::Run& run : text.runs()) {
        const QString css = styleOf(run.attributes, style);
        html += css.isEmpty() ? escaped(run.text)
                              : QStringLiteral("<span style=\"%1\">%2</span>").arg(css, escaped(run.text));
    }
    return html;
}

} // namespace vidora
