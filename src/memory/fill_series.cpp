#include "memory/fill_series.h"

namespace rqm5 {
namespace {

Channel ChannelAt(const CloneImage& image, const FillSeries& series, std::int64_t hertz)
{
    if (!series.like.HasChannel())
        return NewChannel(image, hertz);
    Channel channel = series.like;
    channel.frequency = hertz;
    channel.enabled = true;
    return channel;
}

}  // namespace

int CountUpTo(std::int64_t start, std::int64_t spacing, std::int64_t last)
{
    const std::int64_t way = last - start;
    if (spacing == 0 || (way != 0 && (way < 0) != (spacing < 0)))
        return 0;
    return static_cast<int>(std::min<std::int64_t>(way / spacing + 1, kRadioRows));
}

PastePlan PlanSeries(const CloneImage& image, RowRange rows, int from, const FillSeries& series)
{
    const RowRange rest{from, rows.first + rows.count - from};
    std::vector<ListedChannel> channels(static_cast<std::size_t>(series.count));
    for (int i = 0; i < series.count; ++i) {
        ListedChannel& comes = channels[static_cast<std::size_t>(i)];
        const std::int64_t hertz = series.start + i * series.spacing;
        comes.channel = ChannelAt(image, series, hertz);
        comes.given = Parts::All();
        if (hertz <= 0)
            comes.refusal = MESSAGE("the series ends at 0");
    }
    return PlanPaste(image, series.skipsOccupied ? EmptyRows(image, rest) : RowsOf(rest), channels);
}

}  // namespace rqm5
