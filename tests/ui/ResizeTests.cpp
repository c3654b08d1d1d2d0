#include "WindowFixture.h"

#include <QQuickItem>

#include <random>

namespace vidora {
namespace {

using test::utf8;

/// The window at one size after the other, as a person's hand or a tiling desktop gives them.
class ResizeTest : public test::WindowTest
{
protected:
    void resize(int width, int height)
    {
        window()->resize(width, height);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // what the first turn put off
    }
    void resizeAtRandom()
    {
        std::uniform_int_distribution<int> width(320, 1600), height(400, 1000);
        for (int i = 0; i < 200; ++i) {
            resize(i % 3 == 0 ? 699 + i % 2 : width(m_random), height(m_random));
            ASSERT_EQ(m_device.delegate().isPad(), window()->width() >= 700);
        }
    }
    QQuickItem* list() { return test::visibleList(*window()->contentItem()); }
    void openHome(int channels)
    {
        press(utf8("add"));
        for (int row = 0; row < channels; ++row)
            screen().select(row);
        m_model.selectTab(tabNamed(utf8("currently")));
        auto& progress = *qobject_cast<PassProgress*>(m_model.progress());
        DispatchQueue::runMain([&] { return screen().rows()->rowCount() >= 5 * channels && !progress.isRunning(); });
        test::turn();
    }

    std::mt19937 m_random{20261122};
};

TEST_F(ResizeTest, EveryScreenBearsEverySize)
{
    openHome(12);
    resizeAtRandom();
    resize(1024, 768);
    screen().pressBarButton(0);
    ASSERT_TRUE(m_model.popover());
    resizeAtRandom();
    while (!screen().isRoot())
        m_model.back();
    screen().select(rowOfKind(utf8("show")));
    resizeAtRandom();
    m_model.back();
    screen().select(0);
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    resizeAtRandom();
    m_model.selectTab(tabNamed(utf8("channels")));
    resizeAtRandom();
    m_model.back();
    resizeAtRandom();
    m_device.quit();
}

TEST_F(ResizeTest, AnotherWidthLeavesScreensSearchAndPlace)
{
    press(utf8("add"));
    screen().setSearchText(utf8("lipa"));
    screen().select(0);
    const ScreenObject* chooser = &screen();
    for (const int width : {500, 1200}) {
        resize(width, 800);
        EXPECT_EQ(&screen(), chooser);
        EXPECT_EQ(screen().searchText(), utf8("lipa"));
        EXPECT_EQ(screen().rows()->rowCount(), 3);
    }
    screen().setSearchText({});
    m_model.back();
    openHome(12);
    ASSERT_TRUE(list());
    list()->setProperty("currentIndex", 31);
    test::turn();
    const auto topRow = [&] {
        int index = -1;
        QMetaObject::invokeMethod(list(), "indexAt", Q_RETURN_ARG(int, index), Q_ARG(double, 100.0),
                                  Q_ARG(double, list()->property("contentY").toDouble() + 40));
        return index;
    };
    const int top = topRow();
    ASSERT_GT(top, 15);
    for (const int width : {1000, 400, 699, 700, 1200}) {
        resize(width, 800);
        test::turn();
        EXPECT_NEAR(topRow(), top, 1) << width;
        EXPECT_EQ(list()->property("currentIndex").toInt(), 31);
    }
    m_device.quit();
}

} // namespace
} // namespace vidora
