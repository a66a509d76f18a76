#include "app/status_bar.h"

#include <gtest/gtest.h>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

QString Text(const StatusBar& bar, const char* label)
{
    return bar.findChild<QLabel*>(QLatin1String(label))->text();
}

TEST(StatusBar, CountsTheChannelsOfTheReceiverAndTellsOfTheFile)
{
    CloneImage image = StartUpImage(0);
    for (const int row : {0, kRadioRows - 1, kRadioRows})
        image.MemData(row).enabled = true;
    image.Settings().model = 4;
    Document document(image);
    QWidget window;
    StatusBar bar(&window);
    bar.ShowDocument(document);
    EXPECT_EQ(Text(bar, "lblEnabled"), QStringLiteral("Channels enabled: 2"));
    EXPECT_EQ(Text(bar, "lblRegion"), QStringLiteral("Sibling model"));
    EXPECT_EQ(Text(bar, "lblFileState"), QStringLiteral("New"));
    document.MarkSaved(QStringLiteral("/x.RQ5"));
    bar.ShowDocument(document);
    EXPECT_EQ(Text(bar, "lblFileState"), QStringLiteral("Saved"));
}

}  // namespace
}  // namespace rqm5
