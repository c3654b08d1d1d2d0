#pragma once

#include "platform/UserDefaults.h"

#include <QString>

#include <functional>

namespace vidora {

/// Asks for a review from time to time.
class StoreKitHelper
{
public:
    /// Counts one more display that qualifies, anew for each version of the application, and asks from the eleventh on.
    /// Whether anything is shown then is up to `requestReview`.
    static void displayStoreKit(UserDefaults& defaults, const QString& version,
                                const std::function<void()>& requestReview);
};

} // namespace vidora
