#include "simulator/receiver_memory.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

TEST(ReceiverMemory, HoldsAnImageAndGivesItBack)
{
    for (int region = 0; region < kRegions; ++region) {
        CloneImage image = DemoImage(region);
        image.MemText[0][kNote] = "from the file";
        image.MemEnable[999] = true;  // enabled without a channel, as a receiver may have it
        const ReceiverMemory memory = MemoryFromImage(image);
        EXPECT_TRUE(SameContents(ImageFromMemory(memory, image), image));
        EXPECT_EQ(memory.At(0x0050).Byte(2), SearchPassCount(image));
        const char* const firstPresets[] = {"0000531000", "0000522000", "0000530000", "0000530000"};
        EXPECT_EQ(memory.At(0x0560).Text().substr(0, 10), firstPresets[region]);
    }
}

TEST(SimSession, ALinkFollowsTheDeviceAndGoesWithIt)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("port"));
    SimSession session({.link = link.toStdString()});
    EXPECT_EQ(session.Device(), link);
    EXPECT_EQ(QFile::symLinkTarget(link), session.Terminal());
    // Somebody holds the first device open, so the next one has another name.
    QFile held(session.Terminal());
    ASSERT_TRUE(held.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const QString before = session.Terminal();
    session.HangUp();
    EXPECT_NE(session.Terminal(), before);
    EXPECT_EQ(QFile::symLinkTarget(link), session.Terminal());
    session.Stop();
    EXPECT_FALSE(QFileInfo(link).isSymLink());

    std::ofstream(link.toStdString()) << "a file of somebody's";
    EXPECT_FALSE(SimSession({.link = link.toStdString()}).Error().empty());
    EXPECT_TRUE(QFile::exists(link));
}

}  // namespace
}  // namespace rqm5
