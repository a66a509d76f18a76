#include "link/closing_notes.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("ClosingNote", text);
}

/// Nothing for none.
void AddCounted(QStringList& parts, std::size_t count, const char* one, const char* many)
{
    if (count == 1)
        parts << Translate(one);
    if (count > 1)
        parts << Translate(many).arg(count);
}

QString ChannelsOn(const CloneImage& image)
{
    int channels = 0;
    for (int row = 0; row < kRadioRows; ++row)
        channels += image.MemEnable(row) ? 1 : 0;
    return channels == 1 ? Translate(QT_TRANSLATE_NOOP("ClosingNote", "1 channel on"))
                         : Translate(QT_TRANSLATE_NOOP("ClosingNote", "%1 channels on")).arg(channels);
}

/// Nothing takes no time.
QString TookText(std::chrono::seconds took)
{
    return QString::fromStdString(TimeText(std::max(took, std::chrono::seconds(1))));
}

}  // namespace

std::string TimeText(std::chrono::seconds time)
{
    const auto seconds = static_cast<int>(time.count() % 60);
    return std::to_string(time.count() / 60) + (seconds < 10 ? ":0" : ":") + std::to_string(seconds);
}

std::string ReadNote(std::chrono::seconds took, bool isVerified, const TransferScope& scope,
                     const CloneImage& image, const ImageChange& change)
{
    QStringList changed;
    AddCounted(changed, change.MemoryRows().size(), QT_TRANSLATE_NOOP("ClosingNote", "1 row"),
               QT_TRANSLATE_NOOP("ClosingNote", "%1 rows"));
    AddCounted(changed, change.BankSize.size(), QT_TRANSLATE_NOOP("ClosingNote", "1 bank size"),
               QT_TRANSLATE_NOOP("ClosingNote", "%1 bank sizes"));
    AddCounted(changed, change.BankLink.size(), QT_TRANSLATE_NOOP("ClosingNote", "1 link"),
               QT_TRANSLATE_NOOP("ClosingNote", "%1 links"));
    // The count of Search Pass channels follows from the rows; nobody has set it.
    const std::size_t counts = change.HasSetting(&ReceiverSettings::passCount) ? 1 : 0;
    AddCounted(changed, change.Settings.size() - counts, QT_TRANSLATE_NOOP("ClosingNote", "1 setting"),
               QT_TRANSLATE_NOOP("ClosingNote", "%1 settings"));
    AddCounted(changed, change.VfoRows().size(), QT_TRANSLATE_NOOP("ClosingNote", "1 VFO band"),
               QT_TRANSLATE_NOOP("ClosingNote", "%1 VFO bands"));
    const QString comma = QStringLiteral(", ");
    QStringList parts;
    if (scope.memory)
        parts << ChannelsOn(image);
    parts << (changed.isEmpty()
                  ? Translate(QT_TRANSLATE_NOOP("ClosingNote", "nothing changed"))
                  : Translate(QT_TRANSLATE_NOOP("ClosingNote", "%1 changed")).arg(changed.join(comma)));
    const char* const text = isVerified ? QT_TRANSLATE_NOOP("ClosingNote", "Read in %1 and verified: %2")
                                        : QT_TRANSLATE_NOOP("ClosingNote", "Read in %1: %2");
    return Translate(text).arg(TookText(took), parts.join(comma)).toStdString();
}

std::string WrittenNote(std::chrono::seconds took, bool isVerified)
{
    const char* const text = isVerified ? QT_TRANSLATE_NOOP("ClosingNote", "Written in %1 and verified")
                                        : QT_TRANSLATE_NOOP("ClosingNote", "Written in %1");
    return Translate(text).arg(TookText(took)).toStdString();
}

std::string ComparedNote(std::chrono::seconds took, int differences)
{
    const QString time = TookText(took);
    if (differences == 0)
        return Translate(QT_TRANSLATE_NOOP("ClosingNote", "Compared in %1: no block differs"))
            .arg(time)
            .toStdString();
    const char* const text = differences == 1
                                 ? QT_TRANSLATE_NOOP("ClosingNote", "Compared in %1: 1 block differs")
                                 : QT_TRANSLATE_NOOP("ClosingNote", "Compared in %1: %2 blocks differ");
    QString note = Translate(text).arg(time);
    return (differences == 1 ? note : note.arg(differences)).toStdString();
}

}  // namespace rqm5
