#pragma once

#include <QString>
#include <optional>

#include "image/memory_block.h"
#include "language/message.h"

namespace rqm5 {

/// Which model the receiver is, as far as it has told in this run of the program.
///
/// Its first settings block names the model. A block that this program has written there says nothing of the
/// receiver, also when it is read again.
class ReceiverIdentity
{
  public:
    /// The first settings block was read at this device.
    void Read(const MemoryBlock& settings1, const QString& device);

    /// The first settings block was sent to the receiver at this device, naming this model.
    void Written(int model, const QString& device);

    /// The model of the receiver at this device; nothing as long as it is not known.
    std::optional<int> Model(const QString& device) const;

  private:
    void GoTo(const QString& device);

    QString device_;  ///< another port may have another receiver
    std::optional<int> model_;
    std::optional<int> written_;
};

/// "RQ-M5 E"; "?" for a number that no model has.
QString NameOfModel(int model);

/// "The receiver is an RQ-M5 E, and what is to be written is for an RQ-M5 J."
Message OtherModelText(int receiver, int image);

}  // namespace rqm5
