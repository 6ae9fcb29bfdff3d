// tests/e2e/dummy/failing_installer.cpp - takes the place of the sample pool's installer, and fails with a reason.
#include <cstdio>

int main()
{
    std::fputs("The dog ate it\n", stderr);
    return 1;
}
