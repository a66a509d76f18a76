#include "document/document.h"

#include <QCoreApplication>
#include <utility>

#include "document/step.h"
#include "language/language.h"

namespace rqm5 {

Document::Document(CloneImage image, QObject* parent)
    : QObject(parent), image_(std::move(image)), history_(this)
{
    history_.setUndoLimit(kMostSteps);
    connect(&history_, &QUndoStack::indexChanged, this, &Document::History_IndexChanged);
    // Without an application there is one language.
    if (QCoreApplication::instance() != nullptr)
        connect(&Language::OfProgram(), &Language::Changed, this, &Document::ShowNames);
}

int Document::State() const
{
    const int steps = history_.index();
    return steps > 0 ? static_cast<const Step*>(history_.command(steps - 1))->Serial() : bottom_;
}

bool Document::DataChanged() const
{
    return file_.isMarked || State() != file_.saved;
}

void Document::Announce(const ImageChange& change)
{
    if (!change.IsEmpty())
        emit Changed(change);
}

void Document::Edit(const Message& name, const ChangeFunction& change, int run)
{
    CloneImage after = image_;
    change(after);
    ImageChange difference = Difference(image_, after);
    image_ = std::move(after);
    file_.isMarked = file_.isMarked || difference.IsEmpty();
    Push(name, difference, run);
    Announce(difference);
    emit StateChanged();
}

void Document::Absorb(const ChangeFunction& change)
{
    const CloneImage before = image_;
    change(image_);
    Announce(Difference(before, image_));
}

void Document::Import(const Message& name, const CloneImage& imported, const QString& fileName)
{
    ImageChange difference = Difference(image_, imported);
    image_ = imported;
    auto* step = new Step(*this, name, difference, 0);
    step->TakeFile(std::exchange(file_, {fileName, step->Serial()}));
    PushStep(step);
    Announce(difference);
    emit StateChanged();
}

void Document::Replace(CloneImage image, const QString& fileName, bool isSaved)
{
    image_ = std::move(image);
    bottom_ = ++lastSerial_;
    file_ = {fileName, isSaved ? bottom_ : kNoState};
    history_.clear();
    emit Replaced();
    emit StateChanged();
}

void Document::MarkSaved(const QString& fileName)
{
    ForgetFile(fileName);
    file_ = {fileName, State()};
    ShowSavedState();
    emit StateChanged();
}

void Document::Push(const Message& name, const ImageChange& change, int run)
{
    if (!change.IsEmpty())
        PushStep(new Step(*this, name, change, run));
}

void Document::PushStep(Step* step)
{
    const int steps = history_.index();
    const auto lowest = [this] { return static_cast<const Step*>(history_.command(0))->Serial(); };
    const int lowestBefore = steps == kMostSteps ? lowest() : kNoState;
    history_.push(step);
    // The first step has been dropped to make room, so where it led to is the bottom now.
    if (lowestBefore != kNoState && lowest() != lowestBefore)
        bottom_ = lowestBefore;
    // A run that ends where it began leaves no step, but it was an edit.
    file_.isMarked = file_.isMarked || history_.index() < steps;
}

/// Called by the stack in the middle of its work: nobody is told before it has finished, because listeners
/// may make an edit of what was typed meanwhile.
void Document::TakeStep(const ImageChange& change, bool isUndone)
{
    isStepping_ = true;
    if (isUndone)
        change.Revert(image_);
    else
        change.Apply(image_);
    stepped_.Join(isUndone ? Reversed(change) : change);
}

/// What a step remembers of a file is no longer true once the file has been written.
void Document::ForgetFile(const QString& fileName)
{
    for (int i = 0; i < history_.count(); ++i)
        static_cast<const Step*>(history_.command(i))->ForgetFile(fileName);
}

/// The stack keeps its own mark of the saved state, for the view and so that a run does not go on across it.
void Document::ShowSavedState()
{
    const int marked = history_.cleanIndex();
    const int markedState =
        marked > 0 ? static_cast<const Step*>(history_.command(marked - 1))->Serial() : bottom_;
    if (State() == file_.saved)
        history_.setClean();
    else if (marked >= 0 && markedState != file_.saved)
        history_.resetClean();
}

/// Says the steps in the language of now, and has everybody who shows them look again.
void Document::ShowNames()
{
    for (int i = 0; i < history_.count(); ++i)
        // The stack hands out its steps to look at only; what one is called is not what it does.
        const_cast<Step*>(static_cast<const Step*>(history_.command(i)))->ShowName();
    emit history_.indexChanged(history_.index());
}

void Document::History_IndexChanged()
{
    ShowSavedState();
    if (!std::exchange(isStepping_, false))
        return;
    if (State() == file_.saved)
        file_.isMarked = false;
    const ImageChange change = std::exchange(stepped_, {});
    Announce(change);
    emit Stepped(change);
    emit StateChanged();
}

Transaction::Transaction(Document& document, Message name)
    : document_(document), name_(std::move(name)), before_(document.image_), announced_(document.image_)
{
}

Transaction::~Transaction()
{
    Announce();
    document_.Push(name_, Difference(before_, document_.image_), 0);
    emit document_.StateChanged();
}

void Transaction::Announce()
{
    const ImageChange change = Difference(announced_, document_.image_);
    if (change.IsEmpty())
        return;
    announced_ = document_.image_;
    document_.Announce(change);
}

void Transaction::MarkChanged()
{
    document_.file_.isMarked = true;
}

}  // namespace rqm5
