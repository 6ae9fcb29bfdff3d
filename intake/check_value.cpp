// intake/check_value.cpp - the check value, a bit at a time: it is calculated over some hundred bytes.
#include "intake/check_value.h"

#include <fmt/format.h>

namespace tallyhoop {

std::uint32_t crc32(std::string_view bytes)
{
    constexpr std::uint32_t kPolynomial = 0xEDB88320u;
    std::uint32_t remainder = 0xFFFFFFFFu;
    for (const char byte : bytes) {
        remainder ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder >> 1) ^ ((remainder & 1u) != 0 ? kPolynomial : 0u);
    }
    return ~remainder;
}

std::string eightDigits(std::uint32_t number) { return fmt::format("{:08X}", number); }

std::string checkValue(const CheckedTexts& texts)
{
    std::string all = texts.name + '\n' + texts.initials + '\n' + texts.total + '\n';
    for (const std::string& pick : texts.picks.values)
        all += pick + '\n';
    return eightDigits(crc32(all));
}

} // namespace tallyhoop
