// tests/hardening/probe.cpp - copies its argument into eight characters: when it is longer, hardening must end the
// program.
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
