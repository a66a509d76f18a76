#pragma once

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <functional>

#include "image/clone_image.h"
#include "image/image_change.h"
#include "language/message.h"

namespace rqm5 {

class Step;

/// The open image, its file name and its history: the only one who changes it, and who tells that it did.
///
/// A step of the history holds what it changed, not an image. What lies outside the history (flags that a
/// write takes over from the receiver) is not touched by undoing.
class Document : public QObject
{
    Q_OBJECT

  public:
    static constexpr int kMostSteps = 500;

    using ChangeFunction = std::function<void(CloneImage&)>;

    explicit Document(CloneImage image, QObject* parent = nullptr);

    const CloneImage& Image() const { return image_; }

    /// Path of the current file, empty when there is none.
    const QString& FileName() const { return file_.name; }

    /// There are changes that no file holds yet.
    bool DataChanged() const;

    QUndoStack& History() { return history_; }

    /// Runs a function on a copy of the image and takes over what it changed, as a step of this name. An edit
    /// that leaves everything as it was is no step; it counts as a change all the same.
    /// \param run  edits of one run, such as the drag of a slider, become one step; 0 for an edit by itself
    void Edit(const Message& name, const ChangeFunction& change, int run = 0);

    /// A run for Edit that no other edit belongs to.
    int NewRun() { return ++lastRun_; }

    /// Changes the image outside the history; neither a step nor an unsaved change.
    void Absorb(const ChangeFunction& change);

    /// Takes what an import made of the image as a step that makes its file the current one, and counts as
    /// saved. Undoing it brings back the file from before.
    void Import(const Message& name, const CloneImage& imported, const QString& fileName);

    /// Takes another image, with a history of its own.
    /// \param isSaved  the file holds it; else it is an unsaved change from the start
    void Replace(CloneImage image, const QString& fileName, bool isSaved = true);

    /// A file holds the image now, and is the current one.
    void MarkSaved(const QString& fileName);

  signals:
    /// Something in the image has changed.
    void Changed(const rqm5::ImageChange& change);

    /// Another image has taken the place of the old one; nothing of what was shown is true any more.
    void Replaced();

    /// The current file, or whether there are unsaved changes.
    void StateChanged();

    /// Steps were undone or redone, one or several at once: what they changed together.
    void Stepped(const rqm5::ImageChange& change);

  private:
    friend class Step;
    friend class Transaction;

    static constexpr int kNoState = -1;

    /// The current file, and which state of the image it holds.
    struct File
    {
        QString name;
        int saved = 0;          ///< serial number of the state that is in the file, kNoState for none
        bool isMarked = false;  ///< there is an unsaved change that is no step
    };

    void Push(const Message& name, const ImageChange& change, int run);
    void PushStep(Step* step);
    void Announce(const ImageChange& change);
    void TakeStep(const ImageChange& change, bool isUndone);
    void ForgetFile(const QString& fileName);
    void ShowSavedState();
    void ShowNames();
    int State() const;
    void History_IndexChanged();

    CloneImage image_;
    File file_;
    QUndoStack history_;
    int lastSerial_ = 0;
    int lastRun_ = 0;
    int bottom_ = 0;       ///< the state below the first step: another one once steps were dropped
    ImageChange stepped_;  ///< what the steps that are being taken have changed so far
    bool isStepping_ = false;
};

/// A long change that others may watch while it goes on, such as a read from the receiver. What has changed
/// when it ends is one step.
class Transaction
{
  public:
    Transaction(Document& document, Message name);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    CloneImage& Image() { return document_.image_; }

    /// Tells what has changed since the beginning or the last time.
    void Announce();

    /// Counts as an unsaved change even if everything is as it was.
    void MarkChanged();

  private:
    Document& document_;
    const Message name_;
    const CloneImage before_;
    CloneImage announced_;
};

}  // namespace rqm5
