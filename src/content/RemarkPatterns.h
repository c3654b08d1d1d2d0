#pragma once

#include <QString>
#include <QStringView>

namespace vidora {

/// The few fixed patterns by which remarks and labels are found in texts, scanned by hand in time linear in the text.
/// White space is of any Unicode kind, and what a pattern takes of "anything" ends with its line.

/// A part of a text, in UTF-16 units; length 0 stands for nothing found.
struct TextRange
{
    qsizetype start = 0;
    qsizetype length = 0;
};

/// The first "[" that has a "]" behind it on its line, up to the last such "]".
TextRange firstBracketRemark(QStringView text);

/// Without all remarks of firstBracketRemark.
QString withoutBracketRemarks(const QString& text);

/// Without every white space with a "(" behind it, up to the last ")" of that "("'s line.
QString withoutParenthesisRemarks(const QString& text);

/// Without every white space, word ending in ":" and white space with something behind it, up to the end of the line:
/// the next credit label that has run into the names ahead of it.
QString withoutTrailingLabels(const QString& text);

} // namespace vidora
