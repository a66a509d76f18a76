#pragma once

#include <vector>

#include "memory/channel_editor.h"

namespace rqm5 {

// Editing one cell of the memory table where it stands.

enum class CellKind {
    Fixed,   ///< cannot be edited: the model region does not have it, or the row holds no channel
    Number,  ///< MHz
    Text,
    Choice,
};

struct CellChoice
{
    int value;
    std::string text;
};

/// How a cell is edited, and what it holds now.
struct CellEdit
{
    CellKind kind = CellKind::Fixed;
    std::string text = {};                 ///< of a number or text
    std::vector<CellChoice> choices = {};  ///< in the order of the editor's buttons
    int value = 0;                         ///< the choice that is made
};

/// The secret code's column edits the skip mark in the regions that show it there.
CellEdit EditorOfCell(const CloneImage& image, int row, Column column);

/// What becomes of a typed number. An empty text in an empty row is accepted as it is: nothing was typed.
/// \param selector  the bank selector's index, as for CheckFrequency
CheckedEntry CheckCell(const CloneImage& image, int row, Column column, int selector,
                       const std::string& typed);

/// Writes a checked text into a cell. A frequency in an empty row makes it a channel with what is usual
/// there, which is on.
void StoreCellText(CloneImage& image, int row, Column column, const std::string& text);
void StoreCellChoice(CloneImage& image, int row, Column column, int value);

}  // namespace rqm5
