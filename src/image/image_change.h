#pragma once

#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// One thing that differs: its place in its table, and what it was and is.
template <class Value>
struct ChangedItem
{
    int index;
    Value before;
    Value after;

    friend bool operator==(const ChangedItem&, const ChangedItem&) = default;
};

template <class Value>
using ChangedItems = std::vector<ChangedItem<Value>>;

/// What differs between two images. Only what differs is kept, by rising places: a row's contents, its note
/// and its enabled flag are items of their own.
struct ImageChange
{
    ChangedItems<ChannelContents> MemData;
    ChangedItems<FileColumns> MemNotes;
    ChangedItems<bool> MemEnable;
    ChangedItems<ChannelContents> VFOData;
    ChangedItems<FileColumns> VFONotes;
    ChangedItems<int> BankSize;
    ChangedItems<bool> BankLink;
    ChangedItems<int> Settings;  ///< places in kSettingFields

    bool IsEmpty() const;

    /// Makes the image what it was after, or before. Touches nothing but the items.
    void Apply(CloneImage& image) const;
    void Revert(CloneImage& image) const;

    /// Takes in the change that came next: as if both had been one.
    void Join(const ImageChange& next);

    /// True when the setting is among the items.
    template <class T>
    bool HasSetting(T ReceiverSettings::*setting) const
    {
        const int index = SettingIndex(setting);
        for (const auto& item : Settings)
            if (item.index == index)
                return true;
        return false;
    }

    /// True when a memory row's contents, note or flag is among the items.
    bool HasMemoryRows() const { return !MemData.empty() || !MemNotes.empty() || !MemEnable.empty(); }
    bool HasVfoRows() const { return !VFOData.empty() || !VFONotes.empty(); }
    bool HasBanks() const { return !BankSize.empty() || !BankLink.empty(); }

    /// The memory rows that are among the items, each once, rising. The same for VFO rows.
    std::vector<int> MemoryRows() const;
    std::vector<int> VfoRows() const;

    friend bool operator==(const ImageChange&, const ImageChange&) = default;
};

/// The way back.
ImageChange Reversed(ImageChange change);

ImageChange Difference(const CloneImage& before, const CloneImage& after);

}  // namespace rqm5
