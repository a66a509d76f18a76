#pragma once

#include <QCoreApplication>
#include <QString>
#include <chrono>
#include <vector>

namespace rqm5 {

/// What the parts of a transfer do.
enum class Work { Read, ReadAgain, Backup, Write, Verify, Learn, Check, WriteChanges };

/// A part of a transfer: so many blocks in all, the settings and VFO bands first.
struct TransferPart
{
    Work work;
    int blocks;
    int settingsBlocks;
};

/// Says what a transfer does, how far it is and how long it will take. The parts are those that are to come;
/// what they really are shows while they run.
class TransferProgress
{
    Q_DECLARE_TR_FUNCTIONS(TransferProgress)

  public:
    using Clock = std::chrono::steady_clock;

    void Begin(std::vector<TransferPart> parts);

    /// The next part begins.
    void NextPart(Clock::time_point now);

    /// Blocks go by rows from here on; the last value is maximum.
    void RowsStarted(int maximum);
    void RowMoved(int value);
    void BlockDone(Clock::time_point now);

    /// "Reading channels: 92 of 1210, about 1:20 left"; empty when no part runs.
    QString Text() const;

    /// 0 to 1
    double Fraction() const;

  private:
    int BlocksLeft() const;
    QString Where() const;

    std::vector<TransferPart> parts_;
    std::size_t next_ = 0;  ///< counted from 1 when one runs
    int done_ = 0;          ///< of all parts
    int doneInPart_ = 0;
    int leftInPart_ = 0;
    int row_ = -1;
    int maximum_ = -1;  ///< -1 before the rows
    Clock::time_point last_;
    Clock::duration spent_{0};  ///< between blocks; what a question took does not count
    int measured_ = 0;
};

}  // namespace rqm5
