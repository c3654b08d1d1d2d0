// vidora-manual FOLDER: writes what is made out of the tables of commands and settings, for the package: the manual
// page and the completion of three shells. Belongs to the build and is not installed.
#include "app/ManualPage.h"
#include "app/ShellCompletion.h"

#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace vidora;
    if (argc != 2) {
        std::fputs("vidora-manual takes a folder.\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(argv[1]) + QLatin1Char('/');
    const std::pair<const char*, QString> files[] = {{"vidora.1", manualPage(QStringLiteral(VIDORA_VERSION))},
                                                     {"vidora.bash", bashCompletion()},
                                                     {"vidora.zsh", zshCompletion()},
                                                     {"vidora.fish", fishCompletion()}};
    for (const auto& [name, text] : files) {
        QFile file(folder + QLatin1String(name));
        const QByteArray bytes = text.toUtf8();
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
            std::fprintf(stderr, "%s can't be written\n", qUtf8Printable(file.fileName()));
            return 1;
        }
    }
    return 0;
}
