#include "memory/channel_clip.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "image/utf8.h"
#include "memory/channel_parts.h"

namespace rqm5 {
namespace {

constexpr std::string_view kHead = "RQ-M5 channels 1";

/// A number of a channel with the range that the receiver's memory has for it.
struct ClipNumber
{
    std::int64_t (*get)(const Channel&);
    void (*set)(Channel&, std::int64_t);
    std::int64_t most;
};

template <auto Member>
constexpr ClipNumber Number(std::int64_t most)
{
    using Value = std::remove_cvref_t<decltype(std::declval<Channel>().*Member)>;
    return {[](const Channel& channel) { return static_cast<std::int64_t>(channel.*Member); },
            [](Channel& channel, std::int64_t value) { channel.*Member = static_cast<Value>(value); }, most};
}

constexpr std::array kNumbers = {
    Number<&ChannelContents::frequency>(9'999'999'999),
    Number<&ChannelContents::shiftFrequency>(99'999'999),
    Number<&ChannelContents::mode>(2),
    Number<&ChannelContents::step>(19),
    Number<&ChannelContents::option>(255),
    Number<&ChannelContents::secret>(16),
    Number<&ChannelContents::carrier>(28),
    Number<&ChannelContents::tone>(38),
    Number<&ChannelContents::shift>(255),
    Number<&ChannelContents::isSecretEdited>(1),
    Number<&ChannelContents::isCarrierImported>(1),
    Number<&ChannelContents::blank>((1 << kBlockColumns) - 1),
    Number<&Channel::enabled>(1),
};

/// A note on one line, so that the text can be cut into rows at line ends.
std::string Escaped(std::string_view note)
{
    std::string text;
    for (const char c : note)
        text += c == '\\' ? std::string("\\\\") : c == '\n' ? std::string("\\n") : std::string(1, c);
    return text;
}

std::string Unescaped(std::string_view text)
{
    std::string note;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && i + 1 < text.size();
        if (isEscape)
            ++i;
        note += isEscape && text[i] == 'n' ? '\n' : text[i];
    }
    return note;
}

/// Takes a piece off the front of a text, up to a separator or its end, and the separator.
std::string_view Take(std::string_view& text, char separator)
{
    const std::string_view piece = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(text.size(), piece.size() + 1));
    return piece;
}

std::optional<Channel> ParseRow(std::string_view line)
{
    Channel channel;
    for (const ClipNumber& number : kNumbers) {
        const std::string_view text = Take(line, '\t');
        std::int64_t value = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
        if (read.ec != std::errc() || read.ptr != text.data() + text.size() || value < 0 ||
            value > number.most)
            return std::nullopt;
        number.set(channel, value);
    }
    channel.note = Unescaped(line);
    return IsValidUtf8(channel.note) ? std::optional(channel) : std::nullopt;
}

struct ClipColumn
{
    std::string_view title;
    int part;
};

constexpr ClipColumn kColumnsShown[] = {{"Frequency", kFrequency},
                                        {"Mode", kMode},
                                        {"Step", kStep},
                                        {"Option", kOption},
                                        {"Skip", kSkipPart},
                                        {"Secret", kSecret},
                                        {"Carrier", kCarrier},
                                        {"Tone", kTone},
                                        {"Shift", kShift},
                                        {"ShiftFreq.", kShiftFrequency},
                                        {"Note", kNote}};

std::string Cell(const CloneImage& image, int row, int part)
{
    const Channel& channel = image.MemData(row);
    if (part == kSkipPart)
        return channel.IsSkipped() ? "*" : "";
    if (part == kSecret)
        return image.MemText(row, kSecret);
    return PlainNote(CellText(channel, RowKind::Memory, image.ModelNo(), static_cast<Column>(part)));
}

std::string HtmlText(std::string_view text)
{
    std::string html;
    for (const char c : text)
        html += c == '&'   ? std::string("&amp;")
                : c == '<' ? std::string("&lt;")
                : c == '>' ? std::string("&gt;")
                           : std::string(1, c);
    return html;
}

void AddHtmlRow(std::string& html, std::string_view tag, const std::vector<std::string>& texts)
{
    html += "<tr>";
    for (const std::string& text : texts)
        html.append("<").append(tag).append(">").append(HtmlText(text)).append("</").append(tag).append(">");
    html += "</tr>\n";
}

std::vector<std::string> Titles()
{
    std::vector<std::string> titles;
    for (const ClipColumn& column : kColumnsShown)
        titles.emplace_back(column.title);
    return titles;
}

std::vector<std::string> Cells(const CloneImage& image, int row)
{
    std::vector<std::string> cells;
    for (const ClipColumn& column : kColumnsShown)
        cells.push_back(Cell(image, row, column.part));
    return cells;
}

void AddTabbedRow(std::string& text, const std::vector<std::string>& cells)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
        text.append(i == 0 ? "" : "\t").append(cells[i]);
    text += '\n';
}

}  // namespace

std::string FormatClip(const CloneImage& image, const RowList& rows)
{
    std::string text(kHead);
    text += '\n';
    for (const int row : rows) {
        for (const ClipNumber& number : kNumbers)
            text += std::to_string(number.get(image.MemData(row))) + '\t';
        text += Escaped(image.MemData(row).note) + '\n';
    }
    return text;
}

std::optional<std::vector<Channel>> ParseClip(std::string_view text)
{
    if (Take(text, '\n') != kHead)
        return std::nullopt;
    std::vector<Channel> channels;
    while (!text.empty()) {
        auto channel = ParseRow(Take(text, '\n'));
        if (!channel)
            return std::nullopt;
        channels.push_back(*std::move(channel));
    }
    return channels;
}

std::string FormatTabbed(const CloneImage& image, const RowList& rows)
{
    std::string text;
    AddTabbedRow(text, Titles());
    for (const int row : rows)
        AddTabbedRow(text, Cells(image, row));
    return text;
}

std::string FormatHtml(const CloneImage& image, const RowList& rows)
{
    std::string html = "<table>\n";
    AddHtmlRow(html, "th", Titles());
    for (const int row : rows)
        AddHtmlRow(html, "td", Cells(image, row));
    return html + "</table>\n";
}

}  // namespace rqm5
