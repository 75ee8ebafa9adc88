#include "app/document/KeptSelections.h"

#include "app/document/DocumentScene.h"

#include <gtest/gtest.h>

#include <QUndoStack>

#include <set>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

using Bits = std::vector<bool>;

class KeptInDocument : public DocumentScene
{
protected:
  KeptInDocument() { EXPECT_EQ(open(), ""); }

  KeptSelections& kept() { return document.kept(); }
  QUndoStack& steps() { return document.selection().undoStack(); }

  void keepWhere(const std::string& words, const std::string& name)
  {
    ASSERT_EQ(document.selection().selectWhere(words, RunCombination::Replace).text, "");
    kept().keep(name, document.selection().selectedRuns(), document.selection().words());
  }

  std::vector<std::string> names()
  {
    std::vector<std::string> found;
    for (const KeptSelection& selection : kept().list())
      found.push_back(selection.name);
    return found;
  }

  void saveAndOpen()
  {
    const QString path = folder.filePath("study.talmesh");
    ASSERT_EQ(document.save(path), "");
    const Result<OpenedStudy> opened = openStudyFile(path);
    ASSERT_TRUE(opened.hasValue()) << opened.error();
    ASSERT_EQ(document.open(opened.value()), "");
  }
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(KeptInDocument, HaveTheRunsAndWordsThatWereSelected)
{
  keepWhere("k > 4", "fast");
  document.selection().clear();
  ASSERT_EQ(kept().list().size(), 1U);
  const KeptSelection& fast = kept().list().front();
  EXPECT_EQ(fast.runs, (Bits{false, false, false, false, true, true}));
  EXPECT_EQ(fast.words, "k > 4");
}

TEST_F(KeptInDocument, HaveNamesAndColoursOfTheirOwn)
{
  for (const char* name : {"fast", "fast", "", " fast\n2 "})
    keepWhere("k > 4", name);
  EXPECT_EQ(names(), (Names{"fast", "fast 2", "Selection", "fast 2 2"}));
  std::set<unsigned> colours;
  for (const KeptSelection& selection : kept().list())
    colours.insert(selection.colour);
  EXPECT_EQ(colours.size(), 4U);
  kept().rename(2, "fast");
  EXPECT_EQ(names()[2], "fast 3");
  kept().rename(2, "fast 3");
  EXPECT_EQ(names()[2], "fast 3") << "its own name is free";
  kept().rename(2, " ");
  EXPECT_EQ(names()[2], "fast 3") << "nothing is no name";
}

TEST_F(KeptInDocument, ComeAndGoByStepsOfTheHistory)
{
  int changes = 0;
  QObject::connect(&kept(), &KeptSelections::changed, [&changes] { ++changes; });
  keepWhere("k > 4", "fast");
  kept().rename(0, "quick");
  kept().recolour(0, 0x102030);
  kept().remove(0);
  EXPECT_EQ(names(), Names{});
  EXPECT_EQ(steps().count(), 4) << "the name belongs to what is kept";
  EXPECT_EQ(steps().text(1), "Keep quick");
  steps().undo();
  EXPECT_EQ(names(), Names{"quick"});
  EXPECT_EQ(kept().list().front().colour, 0x102030U);
  kept().rename(0, "slow");
  EXPECT_EQ(names(), Names{"slow"});
  steps().undo();
  EXPECT_EQ(names(), Names{"quick"}) << "a step of its own later";
  steps().setIndex(1);
  EXPECT_EQ(names(), Names{});
  steps().redo();
  EXPECT_EQ(names(), Names{"quick"});
  EXPECT_EQ(changes, 10) << "each step of a way counts";
}

TEST_F(KeptInDocument, AreForTheRunsOfOneTable)
{
  keepWhere("k > 4", "fast");
  ASSERT_EQ(open(sampleRuns()), "");
  EXPECT_EQ(names(), Names{});
  EXPECT_FALSE(steps().canUndo());
  kept().keep("of others", Bits(6, true), {});
  EXPECT_EQ(names(), Names{});
}

TEST_F(KeptInDocument, AreColumnsOfATable)
{
  keepWhere("k > 4", "fast");
  keepWhere("m = 1 or k = 6", "a \"b\", c");
  EXPECT_EQ(kept().commaText({1, 2, 3, 4, 5, 6}), "run,fast,\"a \"\"b\"\", c\"\n"
                                                  "1,0,1\n2,0,0\n3,0,0\n4,0,0\n5,1,0\n6,1,1\n");
}

TEST_F(KeptInDocument, ComeBackWithASession)
{
  keepWhere("k > 4", "fast");
  keepWhere("m = 1", "slow");
  kept().recolour(1, 0xFF8001);
  ASSERT_EQ(document.selection().selectWhere("k = 2", RunCombination::Add).text, "");
  const std::vector<KeptSelection> before = kept().list();
  saveAndOpen();
  EXPECT_EQ(kept().list(), before);
  EXPECT_EQ(selectedRuns(), (std::set<int>{0, 1}));
  EXPECT_EQ(document.selection().words(), "m = 1 or k = 2");
  EXPECT_FALSE(steps().canUndo());
}

TEST_F(KeptInDocument, LetWishesGoBeforeTheWordsOfASession)
{
  keepWhere("k > 4", "fast");
  const QString path = folder.filePath("study.talmesh");
  ASSERT_EQ(document.save(path), "");
  PlotWishes wishes;
  wishes.select = {"k = 1", "k = 3"};
  ASSERT_EQ(document.open(openStudyFile(path).value(), wishes), "");
  EXPECT_EQ(document.selection().words(), "k = 1 or k = 3");
  EXPECT_EQ(names(), Names{"fast"});
}

TEST_F(KeptInDocument, AreLeftOutOfASessionOfOtherRuns)
{
  kept().restore({{"six", 1, Bits(6, true), "k > 0"}, {"five", 2, Bits(5, true), ""}});
  EXPECT_EQ(names(), Names{"six"});
}

TEST_F(KeptInDocument, HaveNamesOfALengthThatSessionsKeep)
{
  const std::string name(300, 'x');
  keepWhere("k > 4", name);
  keepWhere("k > 3", name);
  keepWhere("k > 2", "short");
  kept().rename(2, name + name);
  for (const std::string& one : names())
    EXPECT_LE(one.size(), 200U);
  EXPECT_EQ(names()[1].substr(198), " 2");
  EXPECT_EQ(names()[2].substr(198), " 3");
  const Names before = names();
  saveAndOpen();
  EXPECT_EQ(names(), before);
}
