// qt/services/started_program.h - a program that was started and outlives whoever watches it.
#pragma once

#include <QProcess>

namespace tallyhoop::qt {

/// A program that keeps running when this object is destroyed.
class StartedProgram : public QProcess
{
public:
    StartedProgram() = default;
    ~StartedProgram() override { setProcessState(NotRunning); } // or it would be killed
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;
};

} // namespace tallyhoop::qt
