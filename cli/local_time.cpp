// cli/local_time.cpp - the C library knows the time zone; that of C++20 is not in every compiler yet.
#include "cli/local_time.h"

#include <ctime>

namespace tallyhoop::cli {

std::chrono::local_seconds localNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    const std::chrono::year_month_day day =
        std::chrono::year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday;
    return std::chrono::local_days{day} + std::chrono::hours{local.tm_hour} + std::chrono::minutes{local.tm_min} +
           std::chrono::seconds{local.tm_sec};
}

} // namespace tallyhoop::cli
