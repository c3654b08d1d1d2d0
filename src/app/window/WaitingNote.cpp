#include "app/window/WaitingNote.h"

#include "app/window/Window.h"

#include <QGuiApplication>

#include <cstdlib>

namespace vidora {

WaitingNote::WaitingNote(const QString& text)
{
    prepareEngine(m_engine);
    m_engine.setInitialProperties({{QStringLiteral("text"), text}});
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Vidora/WaitingNote.qml")));
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, &m_listener, [] { std::_Exit(EXIT_SUCCESS); });
    m_appearance.emplace([this](bool dark) {
        for (QObject* root : m_engine.rootObjects())
            root->setProperty("dark", dark);
    });
}

} // namespace vidora
