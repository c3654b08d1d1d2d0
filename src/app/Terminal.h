#pragma once

#include <QString>

namespace vidora {

/// Writes a line to standard error: what goes with the work rather than being its answer.
void say(const QString& message);
/// Writes a text to standard output.
void printText(const QString& text);
/// A text from outside on one line, without what would move the terminal's cursor.
QString printable(QString text);

/// One line at the bottom of the terminal that tells how far something has come, each time in place of the one before.
/// Prints nothing where standard error is no terminal. Main thread, or under the caller's own lock.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void draw(const QString& text);
    /// A bar of which `done` of `of` parts are filled, and behind it a text.
    void draw(std::size_t done, std::size_t of, const QString& text);
    void clear();

private:
    const bool m_isTerminal;
    bool m_isDrawn = false;
};

} // namespace vidora
