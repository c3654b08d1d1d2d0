#include "app/Terminal.h"

#include <algorithm>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace vidora {

namespace {

constexpr std::size_t barWidth = 24;
constexpr auto lineStart = "\r\x1b[K"; // and the line emptied (ECMA-48, EL)

int terminalWidth()
{
    constexpr int otherwise = 80;
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : otherwise;
}

} // namespace

void say(const QString& message)
{
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

void printText(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout); // work may follow
}

QString printable(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = QLatin1Char(' ');
    }
    return text.simplified();
}

ProgressLine::ProgressLine()
    : m_isTerminal(isatty(STDERR_FILENO) == 1)
{
}

void ProgressLine::draw(const QString& text)
{
    if (!m_isTerminal)
        return;
    m_isDrawn = true;
    std::fprintf(stderr, "%s%s", lineStart, text.left(terminalWidth() - 1).toUtf8().constData());
    std::fflush(stderr);
}

void ProgressLine::draw(std::size_t done, std::size_t of, const QString& text)
{
    const std::size_t filled = of > 0 ? std::min(done, of) * barWidth / of : 0;
    const auto part = [](std::size_t length, char character) {
        return QString(static_cast<qsizetype>(length), QLatin1Char(character));
    };
    draw(QLatin1Char('[') + part(filled, '#') + part(barWidth - filled, '.') + QLatin1String("] ") + text);
}

void ProgressLine::clear()
{
    if (m_isDrawn)
        std::fputs(lineStart, stderr);
    m_isDrawn = false;
}

} // namespace vidora
