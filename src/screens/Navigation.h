#pragma once

#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The stack in which a screen stands; null for one that no tab holds.
std::shared_ptr<NavigationController> navigationControllerOf(VidoraAppDelegate& delegate, const ViewController& screen);

/// Puts a screen on top of another one's stack; nothing happens where that one has none.
void pushFrom(VidoraAppDelegate& delegate, const ViewController& below, std::shared_ptr<ScreenModel> screen);

/// Shows a screen that is chosen from and left again: on a pad as a popover, else on top of the other one's stack.
void presentFrom(VidoraAppDelegate& delegate, const ViewController& below, std::shared_ptr<ScreenModel> screen);

/// Takes a screen away that was presented so. It may be gone afterwards.
void dismiss(VidoraAppDelegate& delegate, const ViewController& screen);

} // namespace vidora
