#include "support/PictureDevice.h"
#include "vtk/AggregateTarget.h"
#include "vtk/CachedPicture.h"

#include <vtkAxis.h>
#include <vtkContextClip.h>
#include <vtkContextScene.h>
#include <vtkTransform2D.h>

#include <algorithm>
#include <cmath>
#include <new>

#include "LineSetFixture.h"

/// Pictures that items hand to items that come after them.
namespace
{
using Talmesh::PictureStore;

PictureStore::Picture pictureOf(int width, int height)
{
  auto picture = std::make_shared<Talmesh::LayerPicture>();
  picture->pixels = vtkSmartPointer<vtkImageData>::New();
  picture->pixels->SetDimensions(width, height, 1);
  return picture;
}

PictureStore::Key contentOf(const std::vector<char>& bytes)
{
  PictureStore::Key key;
  Talmesh::addContent(key, bytes.data(), bytes.size());
  return key;
}

/// Three runs of two points.
class SharedPicture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(100, 80);
    painter->Begin(device);
    scene->AddItem(axis);
    axis->SetUnscaledRange(1, 100);
  }
  void TearDown() override { painter->End(); }

  vtkSmartPointer<vtkPlotLineSet> makeItem()
  {
    auto item = vtkSmartPointer<vtkPlotLineSet>::New();
    item->SetStride(2);
    item->OnlyShowSelectedOff();
    item->SetInputData(table, "x", "y");
    item->SetPictureStore(store);
    return item;
  }

  /// How many lines an item counts to be painted.
  std::int64_t linesCounted(vtkPlotLineSet* item)
  {
    const std::int64_t before = store->countedLines();
    device->forget();
    item->Update();
    EXPECT_TRUE(item->Paint(painter));
    return store->countedLines() - before;
  }

  vtkSmartPointer<vtkTable> table =
      makeTable({{"x", {1, 100, 1, 100, 1, 100}}, {"y", {10, 10, 20, 20, 30, 40}}});
  std::shared_ptr<PictureStore> store = std::make_shared<PictureStore>();
  vtkNew<PictureDevice> device;
  vtkNew<vtkContext2D> painter;
  vtkNew<vtkContextScene> scene;
  vtkNew<vtkAxis> axis;
  vtkNew<vtkAxis> linear;
};
} // namespace

TEST_F(SharedPicture, IsTakenByTheNextItemOfTheSameLines)
{
  EXPECT_EQ(linesCounted(makeItem()), 3);
  const auto first = device->pictures;
  EXPECT_EQ(linesCounted(makeItem()), 0);
  ASSERT_EQ(device->pictures.size(), 1u);
  EXPECT_EQ(device->pictures[0].time, first[0].time);
  EXPECT_EQ(device->pictures[0].place, first[0].place);
}

TEST_F(SharedPicture, LeavesOnlyTheHighlightsOfAnotherSelectionToCount)
{
  linesCounted(makeItem());
  table->AddColumn(makeColumn<vtkIdTypeArray>(Remainder, {1, 1, 0, 0, 1, 0}));
  EXPECT_EQ(linesCounted(makeItem()), 2);
  EXPECT_EQ(linesCounted(makeItem()), 0);
  EXPECT_EQ(device->pictures.size(), 2u);
  table->AddColumn(makeColumn<vtkIdTypeArray>(Remainder, {1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(linesCounted(makeItem()), 2) << "a run that counts once less";
}

TEST_F(SharedPicture, IsCountedAgainWhereAnythingDiffers)
{
  linesCounted(makeItem());
  table->SetValue(0, 1, 11.0); // without telling anyone
  EXPECT_EQ(linesCounted(makeItem()), 3) << "values";
  auto item = makeItem();
  item->SetStride(3);
  EXPECT_EQ(linesCounted(item), 2) << "runs";
  item = makeItem();
  item->BreakAtGapsOn();
  EXPECT_EQ(linesCounted(item), 3) << "gaps";
  item = makeItem();
  item->SetWidth(5);
  EXPECT_EQ(linesCounted(item), 3) << "pen";
  item = makeItem();
  item->SetColor(1, 2, 3, 4);
  EXPECT_EQ(linesCounted(item), 3) << "colour";
  item = makeItem();
  item->SetShiftScale({5, 0, 1, 1});
  EXPECT_EQ(linesCounted(item), 3) << "shift";
  axis->LogScaleOn();
  axis->Update();
  item = makeItem();
  item->SetXAxis(axis);
  item->SetYAxis(linear);
  EXPECT_EQ(linesCounted(item), 3) << "logarithms";
  device->setSize(100, 70);
  EXPECT_EQ(linesCounted(makeItem()), 3) << "size";
  device->pixelRatio = 2;
  EXPECT_EQ(linesCounted(makeItem()), 3) << "resolution";
}

TEST_F(SharedPicture, FollowsTheScaleOfItsAxisAndTheShiftOfItsItem)
{
  const auto item = makeItem();
  item->SetXAxis(axis);
  item->SetYAxis(linear);
  EXPECT_EQ(linesCounted(item), 3);
  EXPECT_EQ(linesCounted(item), 0);
  axis->LogScaleOn();
  axis->Update();
  EXPECT_EQ(linesCounted(item), 3);
  item->SetShiftScale({5, 0, 1, 1});
  EXPECT_EQ(linesCounted(item), 3);
  item->SetShiftScale({5, 0, 1, 2});
  EXPECT_EQ(linesCounted(item), 3);
  EXPECT_EQ(linesCounted(item), 0);
  item->SetShiftScale({5, 0, 1, 1});
  EXPECT_EQ(linesCounted(item), 0) << "was counted before";
}

TEST_F(SharedPicture, IsMadeAgainAfterAFailure)
{
  const auto target = Talmesh::AggregateTarget::of(painter, makeItem());
  ASSERT_TRUE(target);
  Talmesh::CachedPicture picture;
  const auto make = [] { return Talmesh::CachedPicture::Pixels(4 * 100 * 80, 255); };
  picture.paint(painter, *target, {1}, make);
  const auto fail = []() -> Talmesh::CachedPicture::Pixels { throw std::bad_alloc(); };
  EXPECT_THROW(picture.paint(painter, *target, {2}, fail), std::bad_alloc);
  device->forget();
  picture.paint(painter, *target, {1}, make);
  EXPECT_EQ(device->pictures.size(), 1u);
}

// Charts tell devices of clips without regard to a transform of the scene.
TEST_F(SharedPicture, ReachesAsFarAsItsClipInAMovedScene)
{
  scene->GetTransform()->Translate(30, 0);
  vtkNew<vtkContextClip> clip;
  clip->SetClip(10, 0, 20, 80);
  clip->AddItem(makeItem());
  scene->AddItem(clip);
  const auto target = Talmesh::AggregateTarget::of(painter, clip->GetItem(0));
  ASSERT_TRUE(target);
  linesCounted(vtkPlotLineSet::SafeDownCast(clip->GetItem(0)));
  ASSERT_EQ(device->pictures.size(), 1u);
  EXPECT_EQ(device->pictures[0].place[0], 9) << "a pixel more than the clip";
  EXPECT_EQ(device->pictures[0].place[2], 22);
}

TEST(PictureStore, KeepsTheDozenUsedLastOfTheLargestPictures)
{
  PictureStore store;
  EXPECT_EQ(store.find({1}), nullptr);
  const auto large = pictureOf(1920, 1080); // 8 MB
  for (int key = 1; key <= 12; ++key)
    store.keep({double(key)}, large);
  EXPECT_EQ(store.find({1}), large);
  store.keep({13}, large);
  EXPECT_EQ(store.find({2}), nullptr);
  EXPECT_NE(store.find({1}), nullptr);
  EXPECT_NE(store.find({3}), nullptr);
}

TEST(PictureStore, KeepsMoreOfSmallPictures)
{
  PictureStore store;
  const auto small = pictureOf(512, 512); // 1 MB, of 32
  for (int key = 1; key <= 33; ++key)
    store.keep({double(key)}, small);
  EXPECT_EQ(store.find({1}), nullptr);
  EXPECT_NE(store.find({2}), nullptr);
}

TEST(PictureStore, KeepsNotEndlesslyManyEmptyPictures)
{
  PictureStore store;
  for (int i = 0; i < 100; ++i)
    store.keep({double(i)}, std::make_shared<Talmesh::LayerPicture>());
  EXPECT_EQ(store.find({35}), nullptr);
  EXPECT_NE(store.find({36}), nullptr);
  store.keep({std::nan("")}, std::make_shared<Talmesh::LayerPicture>());
  EXPECT_NE(store.find({37}), nullptr) << "what no key finds is not kept";
}

TEST(PictureStore, TellsPointsOfOtherSignsApart)
{
  std::vector<char> bytes;
  const auto contentOfPoints = [&bytes](std::vector<float> points)
  {
    bytes.assign(reinterpret_cast<char*>(points.data()),
                 reinterpret_cast<char*>(points.data() + points.size()));
    return contentOf(bytes);
  };
  const std::vector<float> points = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  std::vector<float> mirrored = points;
  // A point's y, and x and y of the fourth point behind it.
  for (const std::size_t i : {1, 8, 9})
    mirrored[i] = -mirrored[i];
  EXPECT_NE(contentOfPoints(points), contentOfPoints(mirrored));
}

TEST(PictureStore, TellsBytesApart)
{
  std::vector<char> bytes(101, 'x');
  const PictureStore::Key content = contentOf(bytes);
  EXPECT_EQ(contentOf(bytes), content);
  for (char& byte : bytes)
  {
    byte = 'y';
    EXPECT_NE(contentOf(bytes), content);
    byte = 'x';
  }
  std::swap(bytes[0], bytes[8] = 'z');
  EXPECT_NE(contentOf(bytes), content);
  bytes.assign(101, 'x');
  bytes.push_back('\0');
  EXPECT_NE(contentOf(bytes), content);
}
