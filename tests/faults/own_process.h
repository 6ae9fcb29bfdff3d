// tests/faults/own_process.h - a test that breaks its surroundings, in a process of its own.
#pragma once

#include <functional>
#include <string>

namespace tallyhoop::test {

/// Runs a part of a test in a child: limits, rights and mounts that it changes are gone with it. What fails there fails
/// the test.
/// @param part returns why this machine cannot do it, to skip the test; empty = it was done
void inOwnProcess(const std::function<std::string()>& part);

} // namespace tallyhoop::test
