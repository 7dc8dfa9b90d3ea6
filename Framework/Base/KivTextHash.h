#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// A hash of names for tables in memory, several times as quick as the standard library's on names of a few
// words: sixteen bytes a step. It may differ from machine to machine and must not get into a file.
inline std::size_t KivTextHash(std::string_view text)
{
    constexpr std::uint64_t kFirst = 0x9e3779b97f4a7c15U, kSecond = 0xd1b54a32d192ed03U;
    const auto load = [](const char* at, std::size_t count) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, count);
        return word;
    };
    const auto mix = [](std::uint64_t left, std::uint64_t right) {
        __extension__ using Product = unsigned __int128;
        const Product product = Product(left) * right;
        return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
    };
    const std::size_t size = text.size();
    const char* at = text.data();
    const char* const end = at + size;
    std::uint64_t sum = size ^ kSecond;
    for (; end - at > 16; at += 16) sum = mix(load(at, 8) ^ kFirst, load(at + 8, 8) ^ sum);
    // What is left, and where that is short what stands before it once more.
    if (size >= 16) return mix(load(end - 16, 8) ^ kFirst, load(end - 8, 8) ^ sum);
    if (size >= 8) return mix(load(at, 8) ^ kFirst, load(end - 8, 8) ^ sum);
    if (size >= 4) return mix(load(at, 4) ^ kFirst, load(end - 4, 4) ^ sum);
    if (size == 0) return 0;
    const std::uint64_t word = load(at, 1) | load(at + size / 2, 1) << 8 | load(end - 1, 1) << 16;
    return mix(word ^ kFirst, sum);
}

// Whether two names are the same; without the call that comparing text of unknown length costs.
inline bool KivSameText(std::string_view left, std::string_view right)
{
    if (left.size() != right.size()) return false;
    const char *a = left.data(), *b = right.data();
    std::size_t rest = left.size();
    if (rest < 8) return std::memcmp(a, b, rest) == 0;
    std::uint64_t wordOfA = 0, wordOfB = 0;
    for (; rest > 8; a += 8, b += 8, rest -= 8) {
        std::memcpy(&wordOfA, a, 8);
        std::memcpy(&wordOfB, b, 8);
        if (wordOfA != wordOfB) return false;
    }
    std::memcpy(&wordOfA, a + rest - 8, 8);
    std::memcpy(&wordOfB, b + rest - 8, 8);
    return wordOfA == wordOfB;
}
