#pragma once

#include "content/AttributedText.h"

#include <QHash>
#include <QString>

namespace vidora {

/// What the roles of an attributed text look like.
struct RichTextStyle
{
    QHash<QString, QString> colours; ///< "#rrggbb" by the name of the role; a role without one has the text's own
    double scale = 1;                ///< of all sizes, for the font size that the user set
};

/// The text in the rich text of Qt. Every character of the runs that means something to markup is escaped, and those
/// that would reach beyond the text are taken out as in `plainText`, so that no tag, picture or link of a provider is
/// ever seen by a renderer.
QString richText(const AttributedText& text, const RichTextStyle& style);

/// The text as it may be shown anywhere: control characters but the line end become blanks, and the characters that
/// turn the direction of all that follows them are left out. Marks that only affect their neighbours stay.
QString plainText(const QString& text);

} // namespace vidora
