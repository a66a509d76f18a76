#include "document/document.h"

#include <gtest/gtest.h>

#include <sstream>

namespace rqm5 {
namespace {

/// A document and what it tells, in words. The volume stands for whatever is edited.
class DocumentTest : public testing::Test
{
  protected:
    DocumentTest()
    {
        const auto tell = [this](const char* what) { told_ += std::string(what) + " "; };
        QObject::connect(&document_, &Document::Changed, [=, this](const ImageChange& change) {
            tell("changed");
            last_ = change;
            seen_ = Volume();
        });
        QObject::connect(&document_, &Document::Replaced, [=] { tell("replaced"); });
        QObject::connect(&document_, &Document::Stepped, [=] { tell("stepped"); });
        QObject::connect(&document_, &Document::StateChanged,
                         [=, this] { tell(document_.DataChanged() ? "unsaved" : "saved"); });
    }

    int Volume() const { return document_.Image().Settings().volume; }
    QUndoStack& History() { return document_.History(); }

    void AddVolume(int volume, int run = 0)
    {
        document_.Edit(
            {"Volume %1", {Volume() + volume}},
            [volume](CloneImage& image) { image.Settings().volume += volume; }, run);
    }

    void Import(const char* file)
    {
        CloneImage image = document_.Image();
        image.Settings().volume = 50;
        document_.Import("Import", image, QLatin1String(file));
    }

    /// Does things by their names.
    void Do(const std::string& script)
    {
        const std::map<std::string, std::function<void()>> things = {
            {"edit", [this] { AddVolume(1); }},
            {"same", [this] { AddVolume(0); }},
            {"drag", [this] { AddVolume(1, 7); }},
            {"back", [this] { AddVolume(-1, 7); }},
            {"undo", [this] { History().undo(); }},
            {"redo", [this] { History().redo(); }},
            {"absorb", [this] { document_.Absorb([](CloneImage& image) { image.SetBankLink(3, true); }); }},
            {"save", [this] { document_.MarkSaved(QStringLiteral("mine.RQ5")); }},
            {"import", [this] { Import("in.csv"); }},
            {"load", [this] { document_.Replace({}, QStringLiteral("other.RQ5")); }},
            {"recover", [this] { document_.Replace({}, QStringLiteral("mine.RQ5"), false); }},
        };
        std::istringstream words(script);
        for (std::string word; words >> word;)
            things.at(word)();
    }

    Document document_{CloneImage{}};
    std::string told_;
    ImageChange last_;  ///< that was announced
    int seen_ = 0;      ///< the volume when it was
};

TEST_F(DocumentTest, EditsAreStepsWithNamesAndAreTold)
{
    const CloneImage before = document_.Image();
    document_.Edit("Note", [](CloneImage& image) { image.MemData(3).note = "a"; });
    EXPECT_EQ(told_, "changed unsaved ");
    EXPECT_EQ(last_, Difference(before, document_.Image()));
    AddVolume(1);
    ASSERT_EQ(History().count(), 2);
    EXPECT_EQ(History().text(0), QStringLiteral("Note"));
    EXPECT_EQ(History().undoText(), QStringLiteral("Volume 31"));
}

TEST_F(DocumentTest, UndoAndRedoRestoreAndTell)
{
    Do("edit edit");
    for (const auto& [way, volume] : {std::pair("undo", 31), std::pair("redo", 32)}) {
        told_.clear();
        Do(way);
        EXPECT_EQ(told_, "changed stepped unsaved ");
        EXPECT_TRUE(Volume() == volume && seen_ == volume) << "what is told is there already";
    }
    told_.clear();
    Do("undo undo");
    EXPECT_TRUE(told_.ends_with("stepped saved ")) << told_;
}

TEST_F(DocumentTest, KnowsWhetherAFileHoldsTheStateThatItIsIn)
{
    struct
    {
        const char* script;
        bool isChanged;
        int steps;
        int volume;
    } const cases[] = {
        {"", false, 0, 30},
        {"edit", true, 1, 31},
        {"edit undo", false, 1, 30},
        {"edit undo redo", true, 1, 31},
        {"same", true, 0, 30},
        {"same edit undo", false, 1, 30},
        {"edit save", false, 1, 31},
        {"edit save undo", true, 1, 30},
        {"edit save undo redo", false, 1, 31},
        {"edit save edit undo", false, 2, 31},
        {"edit save undo edit", true, 1, 31},
        {"edit save undo edit undo", true, 1, 30},
        {"same save", false, 0, 30},
        // A run is one step; it ends where a file holds it.
        {"drag drag drag", true, 1, 33},
        {"drag drag undo", false, 1, 30},
        {"edit drag edit drag", true, 4, 34},
        {"drag save drag drag", true, 2, 33},
        {"drag save drag drag undo", false, 2, 31},
        {"drag drag save undo redo drag undo", false, 2, 32},
        {"drag drag back back", true, 0, 30},
        {"edit save drag back", true, 1, 31},
        {"edit save drag back undo redo", false, 1, 31},
        // What lies outside the history.
        {"absorb", false, 0, 30},
        {"edit absorb undo", false, 1, 30},
        {"edit load", false, 0, 30},
        {"load edit undo", false, 1, 30},
        {"recover", true, 0, 30},
        {"recover edit undo", true, 1, 30},
        {"edit recover save", false, 0, 30},
        // An import counts as saved, and what was there before as what it was.
        {"edit import", false, 2, 50},
        {"edit import undo", true, 2, 31},
        {"edit import undo undo", false, 2, 30},
        {"edit import undo redo", false, 2, 50},
        {"edit save import undo", false, 2, 31},
        {"edit save import save undo", true, 2, 31},
        {"edit import edit undo", false, 3, 50},
        {"edit import edit undo undo", true, 3, 31},
        {"import undo edit save undo", true, 1, 30},
        {"import import undo undo", false, 2, 30},
    };
    for (const auto& row : cases) {
        document_.Replace({}, {});
        Do(row.script);
        EXPECT_EQ(document_.DataChanged(), row.isChanged) << row.script;
        EXPECT_EQ(History().count(), row.steps) << row.script;
        EXPECT_EQ(Volume(), row.volume) << row.script;
    }
}

TEST_F(DocumentTest, AnImportChangesTheFileAndUndoingItBringsTheOldOneBack)
{
    const std::pair<const char*, const char*> cases[] = {
        {"save edit import", "in.csv"},
        {"save edit import undo", "mine.RQ5"},
        {"edit import undo", ""},
        {"edit import undo redo", "in.csv"},
        {"import import", "in.csv"},
        {"save import import undo", "in.csv"},
        {"import save undo redo", "mine.RQ5"},
        {"import load", "other.RQ5"},
    };
    for (const auto& [script, file] : cases) {
        document_.Replace({}, {});
        Do(script);
        EXPECT_EQ(document_.FileName(), QLatin1String(file)) << script;
    }
    document_.Replace({}, {});
    told_.clear();
    Import("in.csv");
    EXPECT_EQ(told_, "changed saved ");
}

TEST_F(DocumentTest, KeepsFiveHundredSteps)
{
    // Whether the saved state is still to be reached: with as many edits behind it, and one more.
    for (const auto& [edits, isReached] : {std::pair(500, true), std::pair(501, false)}) {
        document_.Replace({}, {});
        Do("edit edit save");
        for (int i = 0; i < edits; ++i)
            AddVolume(1);
        EXPECT_EQ(History().count(), Document::kMostSteps);
        History().setIndex(0);
        EXPECT_EQ(document_.DataChanged(), !isReached) << edits;
        EXPECT_EQ(Volume(), isReached ? 32 : 33);
        Do("redo undo");
        EXPECT_EQ(document_.DataChanged(), !isReached) << edits;
    }
}

TEST_F(DocumentTest, ReplaceStartsANewHistory)
{
    Do("edit edit undo");
    told_.clear();
    Do("load");
    EXPECT_EQ(told_, "replaced saved ");
    EXPECT_FALSE(History().canUndo() || History().canRedo());
}

TEST_F(DocumentTest, UndoTouchesOnlyWhatItsStepChanged)
{
    document_.Edit({}, [](CloneImage& image) { image.MemData(3).frequency = 1; });
    told_.clear();
    document_.Absorb([](CloneImage& image) { image.MemData(3).enabled = image.MemData(4).enabled = true; });
    EXPECT_EQ(told_, "changed ");
    Do("undo");
    CloneImage expected;
    expected.MemData(3).enabled = expected.MemData(4).enabled = true;
    EXPECT_TRUE(document_.Image() == expected);
}

TEST_F(DocumentTest, ATransactionIsOneStepHoweverOftenItTells)
{
    {
        Transaction reading(document_, "Read");
        reading.Image().Settings().volume = 1;
        reading.Announce();
        EXPECT_TRUE(seen_ == 1 && last_.MemNotes.empty());
        reading.Announce();
        reading.Image().MemData(3).note = "a";
        reading.Announce();
        EXPECT_TRUE(last_.Settings.empty() && last_.MemNotes.size() == 1) << "each only what is new";
        reading.Image().Settings().squelch = 9;
        EXPECT_EQ(told_, "changed changed ");
    }
    EXPECT_EQ(told_, "changed changed changed unsaved ");
    EXPECT_EQ(History().count(), 1);
    EXPECT_EQ(History().undoText(), QStringLiteral("Read"));
    Do("undo");
    EXPECT_TRUE(document_.Image() == CloneImage{});
}

TEST_F(DocumentTest, ATransactionThatLeavesEverythingAsItWasIsNoStep)
{
    for (const bool isMarked : {false, true}) {
        {
            Transaction reading(document_, "Read");
            reading.Image().Settings().volume = 1;
            reading.Announce();
            reading.Image().Settings().volume = 30;
            if (isMarked)
                reading.MarkChanged();
        }
        EXPECT_EQ(document_.DataChanged(), isMarked);
        EXPECT_EQ(History().count(), 0);
        EXPECT_EQ(seen_, 30);
    }
}

}  // namespace
}  // namespace rqm5
