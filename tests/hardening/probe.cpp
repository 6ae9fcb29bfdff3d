// tests/hardening/probe.cpp - copies its argument where eight characters fit: hardened as the program is, it must be ended
// when there are more.
#include <cstdio>
#include <cstring>

int main(int argumentCount, char** arguments)
{
    char small[8];
    const char* text = argumentCount > 1 ? arguments[1] : "";
    std::memcpy(small, text, std::strlen(text) + 1);
    std::puts(small);
    return 0;
}
