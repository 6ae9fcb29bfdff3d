// tests/files/naive_reader.h - reading a selection once more, slow and simple-minded, to check the real one against.
#pragma once

#include "base/result.h"
#include "pool/entry.h"

#include <string_view>

namespace tallyhoop::test {

/// Makes a text of every line, and puts the first 127 on the bracket one by one.
Read<Entry> readNaively(std::string_view bytes);

} // namespace tallyhoop::test
