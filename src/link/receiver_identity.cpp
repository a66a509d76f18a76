#include "link/receiver_identity.h"

#include "image/receiver_model.h"
#include "settings/settings_codec.h"

namespace rqm5 {

QString NameOfModel(int model)
{
    const std::string_view name = ModelName(model).empty() ? std::string_view("?") : ModelName(model);
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

void ReceiverIdentity::GoTo(const QString& device)
{
    if (device == device_)
        return;
    device_ = device;
    model_.reset();
    written_.reset();
}

void ReceiverIdentity::Read(const MemoryBlock& settings1, const QString& device)
{
    GoTo(device);
    const std::optional<int> model = ModelOf(settings1);
    if (!model || model == written_)
        return;
    // What was written is not there any more, so this is another receiver, or the owner has reset it.
    model_ = model;
    written_.reset();
}

void ReceiverIdentity::Written(int model, const QString& device)
{
    GoTo(device);
    written_ = model;
}

std::optional<int> ReceiverIdentity::Model(const QString& device) const
{
    return device == device_ ? model_ : std::nullopt;
}

Message OtherModelText(int receiver, int image)
{
    return {MESSAGE("The receiver is an %1, and what is to be written is for an %2."),
            {NameOfModel(receiver).toStdString(), NameOfModel(image).toStdString()}};
}

}  // namespace rqm5
