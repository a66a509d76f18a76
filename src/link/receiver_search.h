#pragma once

#include <QObject>
#include <QStringList>
#include <optional>

#include "link/radio_link.h"

namespace rqm5 {

/// Asks serial ports, one after the other, whether a receiver answers: each that can be opened with one read
/// of the first settings block, which names the model.
class ReceiverSearch : public QObject
{
    Q_OBJECT

  public:
    struct Outcome
    {
        QString device;            ///< that answered; empty for none
        std::optional<int> model;  ///< nothing when its reply names none
        int asked = 0;
        QStringList busy;    ///< another program has them
        QStringList denied;  ///< the user may not open them
    };

    using QObject::QObject;

    /// Ends with the first receiver; takes half a second for each port that is silent. Events are processed
    /// meanwhile.
    Outcome Run(const QStringList& devices);

    void Stop();
    bool IsRunning() const { return isRunning_; }

  signals:
    void Asking(const QString& device);

  private:
    bool Ask(const QString& device, Outcome& outcome);

    RadioLink* link_ = nullptr;  ///< of the port that is being asked
    bool isRunning_ = false;
    bool isStopped_ = false;
};

/// The devices of COM 1 to 14 and all that the system lists, as far as they are present, each once.
QStringList PresentDevices();

}  // namespace rqm5
