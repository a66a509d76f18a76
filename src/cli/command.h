#pragma once

#include <span>
#include <string_view>

#include "cli/arguments.h"
#include "cli/channel_output.h"
#include "cli/console.h"
#include "link/expected_memory.h"

namespace rqm5 {

/// One command of the program. A new one takes a handler and a row in the table of commands.
struct Command
{
    std::string_view name;
    const char* summary;  ///< one line; translated where it is shown, as the details are
    const char* details;  ///< what a user needs to know beyond the options
    std::span<const Operand> operands;
    std::span<const Option> options;
    Status (*run)(const Arguments& arguments, Console& console);

    /// What is wrong with arguments that are right one by one; empty when nothing is. May be null.
    Message (*conflict)(const Arguments& arguments) = nullptr;

    /// The operands in the usage line, where their names alone do not say it.
    std::string_view synopsis = {};
};

/// Commands that change, find and explain.
std::span<const Command> EditCommands();

/// Every command, in the order of the help text.
std::span<const Command> Commands();

/// Null when there is no such command.
const Command* FindCommand(std::string_view name);

class ReceiverSession;

/// Lists each block that the receiver holds otherwise, and which of its bytes differ.
/// \param aftermath  what it means when the comparison itself fails
/// \param found      takes the number of blocks that differ; may be null
Status CompareWithReceiver(const std::vector<ExpectedBlock>& expected, ReceiverSession& session,
                           Console& console, const Message& aftermath, Form form = Form::Columns,
                           int* found = nullptr);

// The handlers.
Status RunNew(const Arguments& arguments, Console& console);
Status RunRead(const Arguments& arguments, Console& console);
Status RunWrite(const Arguments& arguments, Console& console);
Status RunVerify(const Arguments& arguments, Console& console);
Status RunExport(const Arguments& arguments, Console& console);
Status RunImport(const Arguments& arguments, Console& console);
Status RunPrint(const Arguments& arguments, Console& console);
Status RunShow(const Arguments& arguments, Console& console);
Status RunCheck(const Arguments& arguments, Console& console);
Status RunRepair(const Arguments& arguments, Console& console);
Status RunDiff(const Arguments& arguments, Console& console);
Status RunPorts(const Arguments& arguments, Console& console);
Status RunRaw(const Arguments& arguments, Console& console);
Status RunFind(const Arguments& arguments, Console& console);
Status RunSet(const Arguments& arguments, Console& console);
Status RunEnable(const Arguments& arguments, Console& console);
Status RunDisable(const Arguments& arguments, Console& console);
Status RunClear(const Arguments& arguments, Console& console);
Status RunCopy(const Arguments& arguments, Console& console);
Status RunMove(const Arguments& arguments, Console& console);
Status RunSort(const Arguments& arguments, Console& console);
Status RunMerge(const Arguments& arguments, Console& console);
Status RunCompletion(const Arguments& arguments, Console& console);
Status RunHelp(const Arguments& arguments, Console& console);

// What is wrong with arguments that are right one by one.
Message FindFault(const Arguments& arguments);
Message DiffFault(const Arguments& arguments);

}  // namespace rqm5
