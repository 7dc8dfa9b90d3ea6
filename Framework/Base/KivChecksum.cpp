#include "Base/KivChecksum.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kLanes = 4; // what one waits for, the others do meanwhile

// Odd, so that multiplying by it loses nothing; its bits are those of the golden ratio.
constexpr std::uint64_t kFactor = 0x9e3779b97f4a7c15;

std::uint64_t WordAt(const char* bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, kWord);
    if constexpr (std::endian::native == std::endian::big) {
        std::uint64_t turned = 0;
        for (std::size_t i = 0; i < kWord; ++i, word >>= 8) turned = turned << 8 | (word & 0xff);
        return turned;
    }
    return word;
}

// For each sum another one of every word, and for each word another one of every sum.
std::uint64_t Mixed(std::uint64_t sum, std::uint64_t word)
{
    return std::rotl((sum ^ word) * kFactor, 29);
}

} // namespace

std::uint64_t KivChecksum(std::string_view bytes)
{
    std::array<std::uint64_t, kLanes> lanes{1, 2, 3, 4};
    const auto take = [&lanes](const char* block) {
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            lanes[lane] = Mixed(lanes[lane], WordAt(block + lane * kWord));
    };
    constexpr std::size_t block = kLanes * kWord;
    const std::size_t whole = bytes.size() - bytes.size() % block;
    for (std::size_t at = 0; at < whole; at += block) take(bytes.data() + at);
    std::array<char, block> rest{};
    bytes.copy(rest.data(), block, whole);
    take(rest.data());

    std::uint64_t sum = bytes.size();
    for (const std::uint64_t lane : lanes) sum = Mixed(sum, lane);
    sum ^= sum >> 32;
    sum *= kFactor;
    return sum ^ sum >> 29;
}

std::string KivChecksumText(std::string_view bytes)
{
    std::uint64_t sum = KivChecksum(bytes);
    std::string digits(16, '0');
    for (std::size_t at = digits.size(); at-- > 0; sum >>= 4) digits[at] = "0123456789abcdef"[sum & 15];
    return digits;
}
