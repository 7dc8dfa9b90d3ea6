#pragma once

// The name of every tab's frame in its page.
inline constexpr const char* kKivDrwFrameName = "DrwSet";
