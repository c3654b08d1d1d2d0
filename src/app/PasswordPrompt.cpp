#include "app/PasswordPrompt.h"

#include <QByteArray>

#include <cstdio>
#include <termios.h>
#include <unistd.h>

namespace vidora {

namespace {

constexpr qsizetype longestPassword = 4096;

/// A terminal that neither shows nor interprets what is typed, for as long as this lives.
class SilentTerminal
{
public:
    SilentTerminal()
    {
        ::tcgetattr(STDIN_FILENO, &m_before);
        termios silent = m_before;
        // Ctrl-C arrives as a character: a process that it ended here would leave the terminal without an echo.
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
        silent.c_cc[VMIN] = 1;
        silent.c_cc[VTIME] = 0;
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;
    ~SilentTerminal() { ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before); }

private:
    termios m_before = {};
};

/// Removes the last character of a text in UTF-8.
void chopCharacter(QByteArray& line)
{
    constexpr int continuation = 0x80;
    while (!line.isEmpty() && (line.back() & 0xC0) == continuation)
        line.chop(1);
    line.chop(1);
}

std::optional<QByteArray> readLine(bool isTyped)
{
    enum : char
    {
        CtrlC = 3,
        CtrlD = 4,
        Backspace = 8,
        CtrlU = 21,
        Delete = 127
    };
    QByteArray line;
    for (char character = 0; ::read(STDIN_FILENO, &character, 1) == 1;) {
        if (character == '\n' || character == '\r')
            return line;
        if (isTyped && (character == CtrlC || character == CtrlD))
            return std::nullopt;
        if (isTyped && character == CtrlU)
            line.clear();
        else if (isTyped && (character == Backspace || character == Delete))
            chopCharacter(line);
        else
            line += character;
        if (line.size() > longestPassword)
            return std::nullopt;
    }
    return line;
}

} // namespace

std::optional<QString> readPassword(const QString& question)
{
    std::optional<QByteArray> line;
    if (::isatty(STDIN_FILENO)) {
        std::fputs(qUtf8Printable(question), stderr);
        const SilentTerminal terminal;
        line = readLine(true);
        std::fputs("\n", stderr);
    } else {
        line = readLine(false);
    }
    return line && !line->isEmpty() ? std::optional(QString::fromUtf8(*line)) : std::nullopt;
}

} // namespace vidora
