#pragma once

#include <QUndoCommand>
#include <optional>

#include "document/document.h"

namespace rqm5 {

/// A step of a document's history. The change has been made already when the step is pushed.
class Step : public QUndoCommand
{
  public:
    Step(Document& document, Message name, ImageChange change, int run);

    /// Makes the step change the current file, too: to the document's of now from the one that was before.
    void TakeFile(const Document::File& before) { otherFile_ = before; }

    /// The file has been written: what the step remembers of it is in it no longer.
    void ForgetFile(const QString& fileName) const;

    /// Says its name in the program's language, as it is now.
    void ShowName();

    /// The number of the state that the step leads to.
    int Serial() const { return serial_; }

    void undo() override;
    void redo() override;
    int id() const override { return run_; }
    bool mergeWith(const QUndoCommand* next) override;

  private:
    void SwapFile();

    Document& document_;
    Message name_;
    ImageChange change_;
    /// The file of the side that the document is not on. The stack hands out its steps to look at only, and
    /// what is forgotten here does not change what a step does.
    mutable std::optional<Document::File> otherFile_;
    int run_;
    int serial_;
    bool isMade_ = true;  ///< redo has nothing to do the first time
};

}  // namespace rqm5
