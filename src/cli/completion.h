#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/command.h"

namespace rqm5 {

/// What a shell offers for a value.
struct Offer
{
    enum class Kind { Nothing, Words, Ports, Groups, Rows, Folder, AnyFile, CloneFile, CsvFile, PdfFile };

    Kind kind = Kind::Nothing;
    std::vector<std::string> words = {};  ///< of Words
};

/// By what stands for the value in a usage line: "P", "SEL", "a4|letter", "FILE", "OUT.csv", ...
Offer OfferOf(std::string_view placeholder);

/// What is offered behind the options of a command.
Offer OfferOf(const Command& command, std::size_t operand);

/// The words of the banks and groups, and of rows besides.
std::vector<std::string> GroupWords();
std::vector<std::string> RowWords();

std::string BashCompletion();
std::string ZshCompletion();
std::string FishCompletion();

}  // namespace rqm5
