#include "document/step.h"

#include <utility>

#include "language/translated.h"

namespace rqm5 {
namespace {

constexpr int kNeverMerged = -1;

}  // namespace

Step::Step(Document& document, Message name, ImageChange change, int run)
    : document_(document),
      name_(std::move(name)),
      change_(std::move(change)),
      run_(run != 0 ? run : kNeverMerged),
      serial_(++document.lastSerial_)
{
    ShowName();
}

void Step::ShowName()
{
    setText(Translated(name_));
}

void Step::undo()
{
    SwapFile();
    document_.TakeStep(change_, true);
}

void Step::redo()
{
    if (std::exchange(isMade_, false))
        return;
    SwapFile();
    document_.TakeStep(change_, false);
}

void Step::SwapFile()
{
    if (otherFile_)
        std::swap(*otherFile_, document_.file_);
}

void Step::ForgetFile(const QString& fileName) const
{
    if (otherFile_ && otherFile_->name == fileName)
        otherFile_->saved = Document::kNoState;
}

bool Step::mergeWith(const QUndoCommand* next)
{
    const auto* step = static_cast<const Step*>(next);
    change_.Join(step->change_);
    serial_ = step->serial_;
    name_ = step->name_;
    ShowName();
    setObsolete(change_.IsEmpty());
    return true;
}

}  // namespace rqm5
