// tests/faults/report_writers.h - the reports, the outlook and the web page: what is made anew each time.
#pragma once

#include "faults/writers.h"

#include <vector>

namespace tallyhoop::test {

std::vector<WriterKind> reportWriters();

} // namespace tallyhoop::test
