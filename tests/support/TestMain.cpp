#include <QCoreApplication>
#include <QLocale>

#include <gmock/gmock.h>

// The device of the tests stands neither in a provider's zone nor in the machine's, so that a mix-up of zones shows.
int main(int argc, char** argv)
{
    qputenv("TZ", "America/St_Johns");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
