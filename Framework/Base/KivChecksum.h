#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// A sum of bytes by which damage shows, not forgery: the same on every machine and in every version. Two
// texts of one length that differ within eight bytes (at a multiple of eight) alone never have the same sum;
// any other two do by a chance of one in 2^64.
std::uint64_t KivChecksum(std::string_view bytes);

// The sum in 16 hexadecimal digits.
std::string KivChecksumText(std::string_view bytes);
