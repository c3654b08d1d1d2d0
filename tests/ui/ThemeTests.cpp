#include "app/window/Window.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace vidora {
namespace {

/// WCAG 2.1, "relative luminance" and "contrast ratio".
double luminance(const QColor& colour)
{
    const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// Texts of one role, and what they stand on.
struct Pairs
{
    double least; ///< 4.5, or 3 for type that is large, or bold and above 18.66 pixels
    const char* text;
    std::vector<const char*> backgrounds;
};

const std::vector<Pairs> pairs{
    {4.5, "label", {"secondaryGroupedBackground", "pressed", "barBackground", "groupedBackground", "tertiaryFill"}},
    {4.5,
     "secondaryLabel",
     {"secondaryGroupedBackground", "pressed", "barBackground", "groupedBackground", "tertiaryFill"}},
    {4.5, "lightGrey", {"secondaryGroupedBackground", "pressed", "groupedBackground"}},
    {4.5, "indigo", {"tertiaryFill", "pressed"}},
    {4.5, "accent", {"barBackground", "groupedBackground", "secondaryGroupedBackground", "pressed", "tertiaryFill"}},
    {4.5, "accentText", {"accent"}},
    {4.5, "destructive", {"secondaryGroupedBackground", "pressed", "tertiaryFill"}},
    {4.5, "destructiveText", {"destructive"}},
    {4.5, "sectionHeader", {"groupedBackground"}},
    {3.0, "alarmRed", {"secondaryGroupedBackground", "pressed"}},
    {3.0, "onAirGreen", {"secondaryGroupedBackground", "pressed"}},
    {3.0, "favouriteOrange", {"secondaryGroupedBackground", "pressed"}},
};

TEST(Theme, TextsCanBeReadInBothPalettes)
{
    QQmlEngine engine;
    prepareEngine(engine);
    QQmlComponent component(&engine);
    component.setData("import QtQuick; import Vidora; QtObject { property var theme: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    ASSERT_TRUE(holder) << component.errorString().toStdString();
    auto* theme = holder->property("theme").value<QObject*>();
    for (const bool dark : {false, true}) {
        theme->setProperty("dark", dark);
        for (const Pairs& pair : pairs) {
            const auto text = theme->property(pair.text).value<QColor>();
            ASSERT_TRUE(text.isValid()) << pair.text;
            for (const char* on : pair.backgrounds) {
                const auto background = theme->property(on).value<QColor>();
                ASSERT_TRUE(background.isValid()) << on;
                EXPECT_GE(contrast(text, background), pair.least)
                    << pair.text << " on " << on << (dark ? ", dark" : ", light");
            }
        }
        // Whatever colour an action has, its title is legible.
        for (int hue = 0; hue < 360; hue += 15) {
            const QColor tint = QColor::fromHsl(hue, 255, 60 + hue % 120);
            QVariant text;
            ASSERT_TRUE(QMetaObject::invokeMethod(theme, "textOn", Q_RETURN_ARG(QVariant, text),
                                                  Q_ARG(QVariant, QVariant(tint))));
            EXPECT_GE(contrast(text.value<QColor>(), tint), 4.1) << tint.name().toStdString();
        }
    }
    theme->setProperty("dark", false);
}

} // namespace
} // namespace vidora
