#include "app/window/Window.h"

#include <QObject>
#include <QQmlEngine>
#include <QtQuickTest>

/// Lets the tests in QML import the window's module.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) { vidora::prepareEngine(*engine); }
};

QUICK_TEST_MAIN_WITH_SETUP(components, Setup)

#include "main.moc"
