#pragma once

#include <string>
#include <string_view>
#include <vector>

// The names that a mistyped one may have meant, at most three, nearest first. Case counts for nothing.
std::vector<std::string_view> NearestNames(std::string_view typed,
                                           const std::vector<std::string_view>& known);

// "; did you mean Ruler or RulerX?", or empty.
std::string DidYouMean(std::string_view typed, const std::vector<std::string_view>& known);
