#pragma once

#include <QDateTime>
#include <QString>

#include "image/clone_image.h"

namespace rqm5 {

/// What the receiver held when all of it was last read.
struct LastRead
{
    CloneImage image;
    QDateTime time;
    QString device;
    bool isOfParts = false;  ///< blocks of several transfers, some written; the time is that of the oldest
};

}  // namespace rqm5
