#pragma once

#include <QPainter>
#include <QPalette>
#include <vector>

#include "spectrum/spectrum_geometry.h"
#include "spectrum/spectrum_picture.h"

namespace rqm5 {

/// What of a picture is shown and stands out.
struct SpectrumScene
{
    const SpectrumPicture& picture;
    SpectrumAxis axis = {};
    double scroll = 0;                   ///< lanes out of sight above, in units of the painter
    std::vector<int> selectedRows = {};  ///< rising
    int hovered = -1;                    ///< mark under the pointer
    int current = -1;                    ///< mark that the keyboard is at
};

/// Paints a spectrum on anything: the dock, a picture file, paper. The font is the painter's.
/// \param palette  whose colours; on paper that of a white page
void PaintSpectrum(QPainter& painter, const QRectF& area, const SpectrumScene& scene,
                   const QPalette& palette);

/// Black on white, for files and paper.
QPalette PaperPalette();

}  // namespace rqm5
