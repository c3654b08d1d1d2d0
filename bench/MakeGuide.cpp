#include "bench/GuideGenerator.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace vidora::bench;

/// vidora-make-guide --channels N --days N --seed N --now TIME [--xz] > file
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes a made-up XMLTV guide to standard output."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("channels"), QStringLiteral("Number of channels."), QStringLiteral("N"), QStringLiteral("300")},
        {QStringLiteral("days"), QStringLiteral("Number of days."), QStringLiteral("N"), QStringLiteral("14")},
        {QStringLiteral("seed"), QStringLiteral("Another number gives another guide."), QStringLiteral("N"),
         QStringLiteral("1")},
        {QStringLiteral("now"), QStringLiteral("First day, as a moment in UTC."), QStringLiteral("TIME"),
         QStringLiteral("2026-11-22T00:00:00Z")},
        {QStringLiteral("xz"), QStringLiteral("Writes an xz file.")},
    });
    parser.process(application);
    const auto now = vidora::instantFromIsoText(parser.value(QStringLiteral("now")));
    if (!now) {
        std::fputs("vidora-make-guide: --now takes a moment such as 2026-11-22T00:00:00Z\n", stderr);
        return 2;
    }
    const GuideOptions options{parser.value(QStringLiteral("channels")).toInt(),
                               parser.value(QStringLiteral("days")).toInt(),
                               parser.value(QStringLiteral("seed")).toULongLong(), *now};
    const auto print = [](std::string_view piece) { std::fwrite(piece.data(), 1, piece.size(), stdout); };
    if (parser.isSet(QStringLiteral("xz")))
        print(guideAsXz(options).toStdString());
    else
        writeGuide(options, print);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
