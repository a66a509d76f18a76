#include "printing/pdf_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "image/value_tables.h"
#include "memory/start_image.h"
#include "printing/grid_text.h"
#include "printing/pdf_text.h"

namespace rqm5 {
namespace {

const PageTitle kTitle = {"home.RQ5", "2024-05-17"};

bool GoOn(int /*page*/, int /*pages*/)
{
    return true;
}

/// Every row a channel, with notes as wide as a line ever gets.
CloneImage FullImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kRadioRows; ++row) {
        Channel& channel = image.MemData(row);
        static_cast<ChannelContents&>(channel) = {
            .frequency = 1'299'995'000,
            .shiftFrequency = 20'000'000,
            .mode = 2,
            .step = static_cast<std::uint8_t>(IndexOf(StepName, "12.5KHz")),
            .option = 32,
            .secret = 16,
            .carrier = 21,
            .tone = 38,
            .shift = 16,
            .blank = 0};
        channel.note = row % 2 ? std::string(39, 'W') + "E" : "東京タワーの放送局を聞くためのメモ";
        channel.enabled = true;
    }
    return image;
}

TEST(PdfFile, RepeatsTitleAndHeadsOnEveryPageAndLosesNoRow)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.pdf"));
    ASSERT_EQ(SavePdf(path, DefaultPageLayout(), BuildListing(FullImage(), {}), kTitle, GoOn).end,
              PrintEnd::Done);
    const QStringList pages = PdfPages(path);
    ASSERT_GT(pages.size(), 15);
    qsizetype rows = 0;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QStringList lines = pages[i].split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Page %1 of %2").arg(i + 1).arg(pages.size()))) << i;
        EXPECT_TRUE(lines[1].startsWith(QLatin1String(i > 0 ? "Memory: " : "Settings"))) << i;
        EXPECT_EQ(lines[2].contains(QStringLiteral("ShiftFreq.")), i > 0) << lines[2].toStdString();
        rows += pages[i].count(QStringLiteral("1299.995000"));
    }
    EXPECT_EQ(rows, kRadioRows);
}

TEST(PdfFile, FitsTheWidestLineOnEveryPaper)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.pdf"));
    const Listing listing = BuildListing(FullImage(), {false, false, true, kSelectPriority});
    for (const auto size : {QPageSize::A4, QPageSize::Letter})
        for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            QPageLayout paper = DefaultPageLayout();
            paper.setPageSize(QPageSize(size), paper.margins());
            paper.setOrientation(orientation);
            ASSERT_EQ(SavePdf(path, paper, listing, kTitle, GoOn).end, PrintEnd::Done);
            const QRectF printable = paper.paintRect(QPageLayout::Point).adjusted(-1, -1, 1, 1);
            const QRectF all = PdfWords(path, paper.fullRect(QPageLayout::Point).size());
            EXPECT_TRUE(printable.contains(all)) << all.right() << " of " << printable.right();
            EXPECT_GT(all.width(), printable.width() * 0.75) << "the font is too small";
        }
}

TEST(GridText, WhatStandsBehindWideCharactersKeepsItsColumn)
{
    const auto behindFourColumns = [](const char* line) {
        QImage picture(300, 40, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        DrawOnGrid(painter, {0, 30}, QString::fromUtf8(line), 30);
        return picture.copy(120, 0, 180, 40);
    };
    EXPECT_EQ(behindFourColumns("東京W"), behindFourColumns("ééééW"));
    EXPECT_NE(behindFourColumns("東京W"), behindFourColumns("éééé"));
}

TEST(PdfFile, LeavesNothingBehindWhenItFailsOrIsCancelled)
{
    const QTemporaryDir folder;
    const auto save = [&](const char* name, const PageProgress& progress) {
        return SavePdf(folder.filePath(QLatin1String(name)), DefaultPageLayout(),
                       BuildListing(FullImage(), {}), kTitle, progress);
    };
    const auto cancelOnThird = [](int page, int) { return page < 2; };
    EXPECT_EQ(save("out.pdf", cancelOnThird).end, PrintEnd::Cancelled);
    for (const char* impossible : {"none/out.pdf", "."}) {
        const PdfOutcome outcome = save(impossible, GoOn);
        EXPECT_TRUE(outcome.end == PrintEnd::Failed && outcome.problem) << impossible;
    }
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

}  // namespace
}  // namespace rqm5
