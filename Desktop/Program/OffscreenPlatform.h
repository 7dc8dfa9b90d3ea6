#pragma once

// For programs that draw without a screen.
namespace OffscreenPlatform {

// Makes Qt draw offscreen and keeps back what its platform has to say of every window that is shown so. To be
// called before the application is constructed.
void Choose();

} // namespace OffscreenPlatform
