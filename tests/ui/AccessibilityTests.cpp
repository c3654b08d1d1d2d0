#include "WindowFixture.h"

#include <QAccessible>
#include <QFile>
#include <QMetaEnum>

namespace vidora {
namespace {

using test::utf8;

bool isControl(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ListItem:
    case QAccessible::EditableText:
    case QAccessible::PageTab:
    case QAccessible::Slider:
    case QAccessible::Grip:
    case QAccessible::MenuItem:
        return true;
    default:
        return false;
    }
}

/// What a person hears who only listens: the tree of what is in sight, compared with the files beside this test.
/// VIDORA_REWRITE_SNAPSHOTS=1 writes them anew; the difference is to be read before it is kept.
class AccessibilityTest : public test::WindowTest
{
protected:
    AccessibilityTest()
    {
        QAccessible::setActive(true);
        window()->resize(390, 844);
        test::turn();
    }

    static QString statesOf(const QAccessible::State& state)
    {
        QStringList states;
        if (state.focused)
            states << utf8("focused");
        if (state.checkable)
            states << (state.checked ? utf8("checked") : utf8("not checked"));
        if (state.selected)
            states << utf8("selected");
        if (state.disabled)
            states << utf8("disabled");
        return states.isEmpty() ? QString() : utf8(" [%1]").arg(states.join(utf8(", ")));
    }

    static void dump(QAccessibleInterface* item, const QString& indent, QString& text)
    {
        const QAccessible::State state = item->state();
        const bool tellsOfPass = item->role() == QAccessible::ProgressBar || item->role() == QAccessible::StaticText;
        if (state.invisible || state.offscreen || tellsOfPass) // one may run or not
            return;
        const QString name = item->text(QAccessible::Name);
        const auto roles = QMetaEnum::fromType<QAccessible::Role>();
        EXPECT_FALSE(isControl(item->role()) && name.isEmpty()) << "an unnamed control below\n" << text.toStdString();
        text += indent + QLatin1String(roles.valueToKey(item->role())) + QLatin1Char(' ') + name + statesOf(state) +
                QLatin1Char('\n');
        // The line that tells of a pass comes and goes, and with it the room for the last rows.
        const int most = item->role() == QAccessible::List ? 10 : item->childCount();
        for (int child = 0; child < std::min(most, item->childCount()); ++child) {
            if (auto* interface = item->child(child))
                dump(interface, indent + QLatin1String("  "), text);
        }
    }

    void expectTree(const char* name)
    {
        test::turn();
        QString text;
        dump(QAccessible::queryAccessibleInterface(window()), {}, text);
        QFile file(utf8(VIDORA_TEST_DATA "/accessibility/") + utf8(name) + utf8(".txt"));
        if (qEnvironmentVariableIsSet("VIDORA_REWRITE_SNAPSHOTS")) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text.toUtf8());
            return;
        }
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name << " is missing";
        EXPECT_EQ(text.toStdString(), file.readAll().toStdString()) << name;
    }
    void type(Qt::Key key)
    {
        QTest::keyClick(window(), key);
        test::turn();
    }
};

TEST_F(AccessibilityTest, EveryScreenCanBeHeard)
{
    expectTree("editor-empty");
    press(utf8("add"));
    expectTree("chooser");
    type(Qt::Key_Down);
    type(Qt::Key_Return);
    type(Qt::Key_C); // the letter index
    expectTree("chooser-one-chosen");
    screen().select(1);
    m_model.back();
    type(Qt::Key_Down);
    expectTree("editor");
    m_model.selectTab(tabNamed(utf8("currently")));
    auto& progress = *qobject_cast<PassProgress*>(m_model.progress());
    DispatchQueue::runMain([&] { return screen().rows()->rowCount() == 10 && !progress.isRunning(); });
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    expectTree("home");
    type(Qt::Key_Menu);
    type(Qt::Key_Escape);
    type(Qt::Key_Up);
    type(Qt::Key_Return);
    DispatchQueue::runMain([&] { return !screen().isRoot() && !screen().refreshing(); });
    expectTree("week");
    m_device.quit();
}

} // namespace
} // namespace vidora
