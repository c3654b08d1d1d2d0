#include "screens/StoreKitHelper.h"

#include "platform/Log.h"
#include "platform/Settings.h"

namespace vidora {

void StoreKitHelper::displayStoreKit(UserDefaults& defaults, const QString& version,
                                     const std::function<void()>& requestReview)
{
    const QString savedVersion = setting::reviewedVersion.name(), times = setting::launchCount.name();
    constexpr std::int64_t enough = 10;
    if (defaults.stringForKey(savedVersion) != version) {
        defaults.setInteger(1, times);
        defaults.setObject(version, savedVersion);
        return;
    }
    const std::int64_t count = defaults.integerForKey(times);
    Log::line(QStringLiteral("numberOfTimesLaunched=%1").arg(count));
    if (count >= enough)
        requestReview();
    else
        defaults.setInteger(count + 1, times);
}

} // namespace vidora
