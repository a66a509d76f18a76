#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/list_form.h"
#include "language/message.h"
#include "memory/channel_parts.h"

namespace rqm5 {

/// The row that a list names for a channel, as it stands there; all empty when it names none.
struct ListedPlace
{
    std::string bank;
    std::string channel;
    std::string row;

    bool IsGiven() const { return !row.empty() || (!bank.empty() && !channel.empty()); }
};

/// One channel of a list: what it says, or why it cannot be taken.
struct ListedChannel
{
    Message source;   ///< where it stands: "Line 3"; empty when it is not from a text
    Channel channel;  ///< only the parts given count
    Parts given;
    Message refusal;  ///< why the row cannot be taken; empty when it can
    Message remark;   ///< what of it is left out
    ListedPlace place;
};

/// The channels of a table. A row that is no channel comes with the reason.
std::vector<ListedChannel> ReadChannels(const ListTable& table);

/// Reads channels out of the text of a spreadsheet, a web page or a file: fields separated by tabs,
/// semicolons or commas, under titles in any order or without; or frequencies alone, one a line. In any
/// encoding, as DecodeList takes it. Never fails: a line that is no channel comes with the reason.
///
/// A number without a unit goes by its column's title, else by what most of the column can be: MHz, kHz or
/// Hz. Limits of the receiver and of a model region are not looked at here; PlanPaste does.
std::vector<ListedChannel> ReadChannelList(std::string_view text, const ListForm& form = {});

}  // namespace rqm5
