#pragma once

#include "app/Device.h"
#include "app/window/Window.h"
#include "app/window/WindowModel.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace vidora::test {

inline QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

inline CommandLine lineOn(const QTemporaryDir& folder)
{
    CommandLine line;
    line.home = folder.path();
    line.clock = instantFromIsoText(utf8("2026-11-22T19:00:00Z"));
    return line;
}

/// Runs what is due by now, on the main queue and in the window.
inline void turn()
{
    for (int i = 0; i < 5; ++i) {
        bool done = false;
        DispatchQueue::main().async([&] { done = true; });
        DispatchQueue::runMain([&] { return done; });
        QCoreApplication::processEvents();
    }
}

/// The list of the table in sight below an item; null without one.
inline QQuickItem* visibleList(const QQuickItem& below)
{
    const auto children = below.childItems();
    for (QQuickItem* item : children) {
        if (!item->isVisible())
            continue;
        QQuickItem* found = item->inherits("QQuickListView") ? item : visibleList(*item);
        if (found)
            return found;
    }
    return nullptr;
}

/// The window on a home of its own, over the sample region.
class WindowTest : public ::testing::Test
{
protected:
    WindowTest()
        : m_device(lineOn(m_folder), Device::Access::Write, true)
        , m_model(m_device.delegate())
    {
        prepareEngine(m_engine);
        m_engine.setInitialProperties({{utf8("app"), QVariant::fromValue<QObject*>(&m_model)}});
        m_engine.load(QUrl(utf8("qrc:/qt/qml/Vidora/Main.qml")));
        bool launched = false;
        DispatchQueue::main().async([&] { launched = true; });
        DispatchQueue::runMain([&] { return launched; });
        m_device.delegate().applicationDidBecomeActive();
    }

    ScreenObject& screen() { return *qobject_cast<ScreenObject*>(m_model.visibleScreen()); }
    QQuickWindow* window() { return qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0)); }
    QVariant cell(int row, int role) { return screen().rows()->index(row, 0).data(role); }
    QVariant tab(int index, int role) { return m_model.tabs()->index(index, 0).data(role); }
    int tabNamed(const QString& name)
    {
        for (int i = 0; i < m_model.tabs()->rowCount(); ++i) {
            if (tab(i, TabList::SymbolRole) == name)
                return i;
        }
        return -1;
    }
    QStringList enabledTabs()
    {
        QStringList names;
        for (int i = 0; i < m_model.tabs()->rowCount(); ++i) {
            if (tab(i, TabList::EnabledRole).toBool())
                names << tab(i, TabList::SymbolRole).toString();
        }
        return names;
    }
    void press(const QString& symbol)
    {
        const QVariantList buttons = screen().barButtons();
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons[i].toMap().value(utf8("symbol")).toString() == symbol)
                return screen().pressBarButton(i);
        }
        ADD_FAILURE() << "no button " << symbol.toStdString();
    }
    int rowOfKind(const QString& kind)
    {
        for (int row = 0; row < screen().rows()->rowCount(); ++row) {
            if (cell(row, ScreenItemModel::KindRole).toString() == kind)
                return row;
        }
        return -1;
    }
    void chooseThree()
    {
        press(utf8("add"));
        ASSERT_FALSE(screen().isRoot());
        for (const int row : {0, 1, 2})
            screen().select(row);
    }

    QTemporaryDir m_folder;
    Device m_device;
    WindowModel m_model;
    QQmlApplicationEngine m_engine;
};

} // namespace vidora::test
