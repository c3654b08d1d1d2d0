#include "WindowFixture.h"
#include "app/window/ScreenObject.h"

namespace vidora {
namespace {

/// A screen of a hundred rows that notes which are displayed.
class LongScreen final : public ScreenModel
{
public:
    QString title() const override { return QStringLiteral("Long"); }
    std::size_t numberOfRowsInSection(std::size_t) const override { return 100; }
    ScreenRow rowAt(RowPath path) const override
    {
        ScreenRow row;
        row.text = QString::number(path.row);
        return row;
    }
    void rowDisplayed(RowPath path) override { displayed.push_back(path.row); }
    void change(std::size_t row) { reloadRows(0, row, 1); }
    std::vector<std::size_t> displayed;
};

TEST(RowsInSight, AreDisplayedOnceAndAgainWhenTheyChange)
{
    using ::testing::ElementsAre;
    const auto screen = std::make_shared<LongScreen>();
    ScreenObject object(screen, true);
    const auto taken = [&] {
        test::turn();
        return std::exchange(screen->displayed, {});
    };
    object.rowsInSight(0, 2);
    EXPECT_THAT(taken(), ElementsAre(0, 1, 2));
    object.rowsInSight(1, 4);
    EXPECT_THAT(taken(), ElementsAre(3, 4));
    object.rowsInSight(0, 3);
    EXPECT_THAT(taken(), ElementsAre(0));
    screen->change(2);
    screen->change(3);
    EXPECT_TRUE(screen->displayed.empty()) << "not within the change";
    EXPECT_THAT(taken(), ElementsAre(0, 1, 2, 3));
    object.rowsInSight(98, 120);
    EXPECT_THAT(taken(), ElementsAre(98, 99));
    object.setVisible(true);
    object.setVisible(false);
    screen->change(99);
    EXPECT_THAT(taken(), ElementsAre()) << "out of sight";
}

} // namespace
} // namespace vidora
