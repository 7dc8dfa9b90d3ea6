#include "NearestNames.h"

#include <algorithm>
#include <utility>

namespace {

std::string Lower(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

// How many letters have to be typed, dropped or changed.
std::size_t Distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) row[i] = i;
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t changed = diagonal + (left[i - 1] == right[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j - 1] + 1, row[j] + 1, changed});
        }
    }
    return row.back();
}

constexpr std::size_t kLongestTyped = 300; // beyond it is no typing error

} // namespace

std::vector<std::string_view> NearestNames(std::string_view typed, const std::vector<std::string_view>& known)
{
    std::vector<std::pair<std::size_t, std::string_view>> candidates;
    if (typed.empty() || typed.size() > kLongestTyped) return {};
    const std::string wanted = Lower(typed);
    const std::size_t patience = 1 + wanted.size() / 4;
    for (const std::string_view name : known) {
        const std::string lower = Lower(name);
        std::size_t distance = Distance(wanted, lower);
        // A part of a name is a good hint, only not as good as a near one.
        if (distance > patience && wanted.size() >= 4 && lower.find(wanted) != std::string::npos)
            distance = patience;
        if (distance <= patience) candidates.emplace_back(distance, name);
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string_view> names;
    for (const auto& [distance, name] : candidates) {
        if (names.size() < 3) names.push_back(name);
    }
    return names;
}

std::string DidYouMean(std::string_view typed, const std::vector<std::string_view>& known)
{
    std::string text;
    const std::vector<std::string_view> names = NearestNames(typed, known);
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += i == 0 ? "; did you mean " : i + 1 == names.size() ? " or " : ", ";
        text += names[i];
    }
    return text.empty() ? text : text + "?";
}
