#pragma once

#include <QDateTime>
#include <QString>

#include "image/clone_image.h"

namespace rqm5 {

/// What the receiver held when all of it was last read in this run.
struct LastRead
{
    CloneImage image;
    QDateTime time;
    QString device;
};

}  // namespace rqm5
