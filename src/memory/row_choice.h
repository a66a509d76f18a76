#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "memory/field_words.h"
#include "memory/row_moves.h"

namespace rqm5 {

/// Rows as users name them at the command line, terms separated by commas:
///
/// Places: all, bank:3, bank:0-4, bank:2/5-9, memory:0-199, program-scan, program-scan/0A-3B, search-pass,
/// priority, vfo, vfo:3, settings, banks. Rows of any place count.
///
/// Conditions: mode=AM, freq:118..137, note~airport and others of their kind. They leave those rows of the
/// places (of all, when no place is named) that meet them; of several for the same field one is enough.
class RowChoice
{
  public:
    /// \return the choice, or what is wrong with the text and what would be right
    static std::variant<RowChoice, Message> Read(std::string_view text);

    /// Takes in one term more. \return what is wrong with it; empty when nothing is
    Message Add(std::string_view term);

    bool HasConditions() const { return !conditions_.empty(); }
    bool HasSettings() const { return hasSettings_; }
    bool HasBanks() const { return hasBanks_; }

    /// Why an image has no such rows: a bank has fewer channels. Empty when it has them.
    Message Fault(const CloneImage& image) const;

    /// The memory rows of each place, in the order of the text; conditions do not count.
    std::vector<RowRange> Ranges(const CloneImage& image) const;

    RowList MemoryRows(const CloneImage& image) const;
    const std::vector<int>& VfoRows() const { return vfoRows_; }

    /// The banks whose channels are named by their places in it.
    std::vector<int> Banks() const;

  private:
    struct Place
    {
        int bank = -1;  ///< its rows go by the sizes of the banks; -1 for fixed rows
        RowRange rows;  ///< memory rows, or channels of the bank
        bool isWholeBank = false;
    };

    struct Condition
    {
        int part = kFrequency;
        enum class Kind { Equal, Between, Contains } kind = Kind::Equal;
        FieldValue low = {};
        FieldValue high = {};
    };

    Message AddBanks(std::string_view numbers);
    Message AddVfoRows(std::string_view rows);
    Message AddCondition(std::string_view term, std::size_t at);
    static bool Meets(const Channel& channel, const Condition& condition);
    bool IsChosen(const Channel& channel) const;

    std::vector<Place> places_;
    std::vector<Condition> conditions_;
    std::vector<int> vfoRows_;
    bool hasSettings_ = false;
    bool hasBanks_ = false;
};

/// A memory row as a place of a choice: "bank:2/5", "search-pass/7", "memory:990" for one in no bank.
std::string PlaceText(const CloneImage& image, int row);

}  // namespace rqm5
