#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string_view>

// The 128-bit identifier of a class or an interface.
struct IID {
    std::array<std::uint64_t, 2> words{};
    friend constexpr auto operator<=>(const IID&, const IID&) = default;
};

// The identifier that belongs to a name: the same in every process and build, another for any other name.
constexpr IID KivMakeIID(std::string_view name)
{
    constexpr std::uint64_t kPrime = 0x100000001b3;
    IID id{{0xcbf29ce484222325, 0x84222325cbf29ce4}};
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        id.words[0] = (id.words[0] ^ byte) * kPrime;
        id.words[1] = (id.words[1] ^ (byte + 0x9eU)) * kPrime;
    }
    return id;
}
