#pragma once

#include <vector>

#include "files/channel_list.h"
#include "memory/row_moves.h"

namespace rqm5 {

/// What becomes of one channel that comes.
struct PlannedRow
{
    static constexpr int kNowhere = -1;

    int row = kNowhere;  ///< the memory row that it goes to
    Message source;      ///< where it comes from, in words; may be empty
    Channel channel;     ///< what the row will hold
    Message refusal;     ///< why it does not go there; empty when it does
    Message remark;      ///< what of it is left out

    bool IsTaken() const { return refusal.empty(); }
};

/// Which rows channels go to, and what is refused, before anything changes.
using PastePlan = std::vector<PlannedRow>;

/// Channels with everything, as they come from this program.
std::vector<ListedChannel> Listed(const std::vector<Channel>& channels);

/// Plans to write channels, in order, into rows. One that is refused leaves its row as it is, the others keep
/// theirs: so what belongs together stays together.
///
/// A channel that comes with a frequency takes the place of what the row holds, with what is usual on that
/// frequency for the parts that it does not come with; without one its parts go into the channel that the row
/// holds. Limits are those of the editor.
PastePlan PlanPaste(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels);

/// The same for a long list: what cannot be taken takes no row, so no gaps are left.
PastePlan PlanOn(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels);

/// Plans to write channels into the rows that their list names. What a list does not say of a channel that is
/// there already stays as it is.
PastePlan PlanNamed(const CloneImage& image, const std::vector<ListedChannel>& channels);

/// Plans to write chosen parts of channels into the channels that rows hold, over and over when there are
/// more rows. Rows without a channel are passed over unless the frequency is among the parts.
PastePlan PlanParts(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels,
                    Parts parts);

/// True when somebody should look at the plan first: it overwrites something, or something is refused or left
/// out.
bool NeedsLook(const CloneImage& image, const PastePlan& plan);

/// The rows that the plan writes.
RowList RowsWritten(const PastePlan& plan);

void ApplyPlan(const PastePlan& plan, CloneImage& image);

}  // namespace rqm5
