#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "app/transfer_progress.h"
#include "document/document.h"
#include "language/message.h"
#include "link/last_read.h"
#include "link/radio_link.h"
#include "link/receiver_identity.h"
#include "link/receiver_reader.h"
#include "link/transfer_observer.h"
#include "link/transfer_scope.h"
#include "link/write_plan.h"
#include "ui/dialogs.h"

namespace rqm5 {

enum class Transfer {
    ReadAll,
    ReadMemory,
    ReadSettings,
    ReadBankPage,
    WriteAll,
    WriteMemory,
    WriteSettings,
    WriteBankPage
};

/// Runs one transfer at a time between the receiver and the document, and passes on what it tells.
class TransferCommands : public QObject, private TransferObserver
{
    Q_OBJECT

  public:
    TransferCommands(Document& document, RadioLink& link, Dialogs& dialogs, QWidget& window);

    /// Runs a transfer to its end; events are processed meanwhile. Does nothing while another one runs.
    /// \param selector  the group of a memory transfer
    void Run(Transfer transfer, int selector);

    /// Runs other work that uses the line, in the place of a transfer: nothing else starts meanwhile, and
    /// Cancel ends it. Does nothing while a transfer runs.
    void RunOther(const std::function<void()>& work);

    /// Writes another image than the open one, which stays as it is.
    void WriteBack(const CloneImage& image, const TransferScope& scope);

    /// Reads all of the receiver into an image of its own; the open one stays as it is.
    /// \param image  what the receiver holds when it is done, else unspecified
    TransferResult ReadBeside(CloneImage& image);

    /// What the receiver at this port held when all of it was last read in this run; else what is known of
    /// all of it, maybe from an earlier run.
    std::optional<LastRead> LastFullRead() const;

    /// Runs an operation of several parts in the place of a transfer. \return what it returned
    TransferResult RunParts(std::vector<TransferPart> parts, const std::function<TransferResult()>& work);

    // What the parts of a write have in common, while one runs.

    TransferObserver& Observer() { return *this; }
    void BeginPart();
    int Run(QDialog& dialog);
    bool MayWriteToThisModel();
    bool SaveBackup(const QString& path, const CloneImage& backup);
    TransferResult Verify(const std::vector<ExpectedBlock>& expected);
    void NoteWritten(TransferResult result, bool isVerified);

    /// A sentence for the end of the transfer.
    void AddNote(const QString& note) { notes_ << note; }
    bool HasNote() const { return !notes_.isEmpty(); }

    /// Says after a cancel how far a write came, and remembers which model was written.
    void TellWritten(const WritePlan& plan, const CloneImage& image, TransferResult result);

    /// How far other work is: it begins, up to a maximum, and comes to a value.
    void ShowProgress(int maximum) { emit ProgressBegan(maximum); }
    void MoveProgress(int value) { emit ProgressAdvanced(value, value); }

    /// True once the work that runs now shall end.
    bool IsStopped() const { return isCancelled_; }

    bool IsRunning() const { return isRunning_; }

    /// Ends the transfer at once, without a message; only a write that has changed the receiver says how
    /// far it came.
    void Cancel();

  signals:
    void Started();
    void Ended(rqm5::TransferResult result);
    void WriteBegan();
    void ProgressBegan(int maximum);
    void ProgressAdvanced(int value, int row);

    /// What is being done, how far it is and how long it will take, in words and from 0 to 1.
    void ProgressTold(const QString& text, double fraction);

    /// A message or question is about to be shown.
    void Asking(const QString& text);
    void GroupWanted(int selector);  ///< an "all" operation moves the bank selector

    /// A write begins that sends frequencies outside the receiver's range: the rows, one each.
    void OutOfRange(const std::vector<rqm5::Message>& rows);

    /// What there is to say about a transfer without a message, once it has ended: that nothing was written,
    /// that the receiver was read back and agrees.
    void Noted(const QString& text);

  private:
    void Occupy(const std::function<TransferResult()>& work);
    TransferResult RunOperation(Transfer transfer, int selector);
    TransferResult ReadAll();
    void KeepLastRead(const CloneImage& image);
    TransferResult Read(const rqm5::Message& name, const TransferScope& scope,
                        const std::function<TransferResult(ReceiverReader&)>& read);
    TransferResult ReadTwice(const std::vector<ExpectedBlock>& blocks);
    void NameUnreadable(const std::vector<rqm5::Message>& names);
    TransferResult Write(const TransferScope& scope);
    const CloneImage& Source() const { return other_ ? *other_ : document_.Image(); }
    TransferResult KeepBackup(const TransferScope& scope, const QString& folder);
    TransferResult WriteBlocks(const TransferScope& scope, bool isVerified);
    void Warn(Prompt warning);
    void WarnOfBlocks(const QString& title, const QString& text, const std::vector<rqm5::Message>& names);

    QMessageBox::StandardButton Ask(const Prompt& prompt);

    // What is told while a transfer runs and at its end.
    void TellProgress();
    void BeginReading(const TransferScope& scope);
    void BeginWriting(const TransferScope& scope, bool keepsBackup, bool isVerified);
    void NoteRead(TransferResult result, const TransferScope& scope, const CloneImage& before,
                  bool hadUnsavedChanges);
    std::chrono::seconds Taken() const;

    void ProgressStarted(int maximum) override;
    void ProgressMoved(int value, int row) override;
    void BlockDone(int address, bool written) override;
    void BlockRepeated(int /*address*/) override { ++repeated_; }
    void GroupChosen(int selector) override { emit GroupWanted(selector); }
    void Stored() override;
    void BlockRead(int address, const MemoryBlock& block) override;
    void Message(const Problem& problem) override;
    bool IsCancelled() override { return isCancelled_; }

    Document& document_;
    RadioLink& link_;
    Dialogs& dialogs_;
    QWidget& window_;
    Transaction* reading_ = nullptr;   ///< of the read that runs
    std::optional<CloneImage> other_;  ///< what is written in the place of the open image
    std::optional<LastRead> lastRead_;
    QStringList notes_;  ///< sentences for the end of the transfer
    ReceiverIdentity receiver_;
    std::pair<int, int> agreed_;  ///< models of receiver and image that the user has said yes to
    int repeated_ = 0;            ///< blocks that needed more than one attempt
    bool isReadTwice_ = false;    ///< with the same result
    bool isVerified_ = false;     ///< the receiver was found to hold what was written
    bool isRunning_ = false;
    bool isCancelled_ = false;
    TransferProgress progress_;
    std::chrono::steady_clock::time_point begin_;
    std::chrono::steady_clock::duration asked_{0};  ///< how long messages and questions have stood open
};

}  // namespace rqm5
