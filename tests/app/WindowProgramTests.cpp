#include "app/WindowProgram.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

// A display that is named and gone would end the program where it could have answered on the terminal.
TEST(WindowProgram, OpensAWindowWhereThereIsADisplay)
{
    const QTemporaryDir sockets;
    for (const char* name : {"X4", "wayland-1"}) {
        QFile socket(sockets.filePath(QLatin1String(name)));
        ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
    }
    const QByteArray absolute = sockets.filePath(QStringLiteral("wayland-1")).toUtf8();
    const struct
    {
        const char* variable;
        const char* value;
        bool isThere;
    } cases[] = {
        {"DISPLAY", ":4", true},
        {"DISPLAY", ":4.1", true},
        {"DISPLAY", ":5", false},
        {"DISPLAY", ":", false},
        {"DISPLAY", "", false},
        {"DISPLAY", "localhost:10.0", true}, // of another machine, which answers or not
        {"WAYLAND_DISPLAY", "wayland-1", true},
        {"WAYLAND_DISPLAY", absolute.constData(), true},
        {"WAYLAND_DISPLAY", "wayland-0", false},
        {"WAYLAND_DISPLAY", "/nowhere/wayland-1", false},
        {"WAYLAND_DISPLAY", "", false},
        {"QT_QPA_PLATFORM", "offscreen", true},
        {"SHELL", ":4", false},
    };
    for (const auto& [variable, value, isThere] : cases) {
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), sockets.path());
        environment.insert(QString::fromLatin1(variable), QString::fromUtf8(value));
        EXPECT_EQ(hasDisplay(environment, sockets.path()), isThere) << variable << "=" << value;
    }
}

} // namespace
} // namespace vidora
