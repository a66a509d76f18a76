#pragma once

#include <QString>
#include <QStringList>

#include "simulator/sim_session.h"

namespace rqm5 {

/// What the command line of rq-m5-sim asks for.
struct ProgramOptions
{
    QString memory;  ///< clone file that fills the memory; empty: a demonstration memory
    QString save;    ///< clone file that keeps the memory at the end; empty: none does
    QString log;     ///< file that commands are appended to; empty: none
    int region = 0;  ///< of the demonstration memory
    SimOptions session;
};

struct ParsedOptions
{
    ProgramOptions options;
    QString answer;  ///< not empty: all there is to do is to print this (help, version)
    QString error;   ///< not empty: wrong usage
};

/// \param arguments  the first is the program's name
ParsedOptions ParseProgramOptions(const QStringList& arguments);

}  // namespace rqm5
