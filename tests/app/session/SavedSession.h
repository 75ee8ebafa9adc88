#ifndef SavedSession_h
#define SavedSession_h

#include "app/document/PlotSession.h"
#include "app/document/ShownStudy.h"
#include "app/session/SessionFile.h"
#include "app/session/SessionTable.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <memory>
#include <string>

#include "SampleStudies.h"

/// A study that is saved and opened again.
class SavedSession : public ::testing::Test
{
protected:
  QString path() const { return folder.filePath("study.talmesh"); }

  void save(const Talmesh::app::Study& study)
  {
    shown = std::make_unique<PlotContainer>(nullptr);
    Talmesh::app::showStudy(study, *shown);
    save(study, *shown);
  }

  void save(const Talmesh::app::Study& study, PlotContainer& container)
  {
    EXPECT_EQ(
        Talmesh::app::saveSession(
            path(), Talmesh::app::sessionOf(study, container, Talmesh::app::choiceOf(container))),
        "");
  }

  /// Opens what was saved and shows it in a fresh container.
  PlotContainer& reopen()
  {
    const auto read = Talmesh::app::openSession(path());
    EXPECT_EQ(read.error(), "");
    opened = read.hasValue() ? read.value() : Talmesh::app::OpenedSession();
    restored = std::make_unique<PlotContainer>(nullptr);
    restored->setScene(view.scene());
    if (opened.session)
    {
      Talmesh::app::showStudy(opened.study, *restored);
      Talmesh::app::restoreSettings(*opened.session, *restored);
      Talmesh::app::restoreWindow(*opened.session, *restored);
      Talmesh::app::restoreSelection(*opened.session, *restored);
    }
    return *restored;
  }

  std::string errorOf(const Talmesh::app::SessionParts& parts)
  {
    EXPECT_EQ(Talmesh::app::saveSessionFile(path(), parts), "");
    return Talmesh::app::openSession(path()).error();
  }

  QByteArray dumpOf(const Talmesh::app::Study& study)
  {
    PlotContainer container(nullptr);
    Talmesh::app::showStudy(study, container);
    return Talmesh::app::dumpStudy(study, container, container.getTable());
  }

  QTemporaryDir folder;
  std::unique_ptr<PlotContainer> shown;
  PlotScene view;
  std::unique_ptr<PlotContainer> restored;
  Talmesh::app::OpenedSession opened;
};

#endif
