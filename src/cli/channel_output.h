#pragma once

#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/json_writer.h"
#include "cli/text_table.h"
#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// How a command writes what it found.
enum class Form { Columns, Tabbed, Json };

Form FormOf(const Arguments& arguments);

/// Fault of --json and --tsv together.
Message FormFault(const Arguments& arguments);

void Print(const TextTable& table, Form form, Console& console);

/// The titles of the memory table, "Off" in front as in a listing.
std::vector<std::string> ChannelTitles();

/// The cells below them: "x" for a channel that is off, then what the table shows.
std::vector<std::string> ChannelCells(const CloneImage& image, int row);

/// How a row is painted: channels that are off step back.
Paint ChannelPaint(const Channel& channel);

/// Where a row is and what it holds, as an object.
void WriteRow(JsonWriter& json, const CloneImage& image, int row);

/// The members of a channel.
void WriteChannel(JsonWriter& json, const Channel& channel, RowKind kind);

}  // namespace rqm5
