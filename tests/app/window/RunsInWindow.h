#ifndef RunsInWindow_h
#define RunsInWindow_h

#include "app/window/MainWindow.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

#include "SampleStudies.h"

/// A window into which three runs can be opened.
class RunsInWindow : public ::testing::Test
{
protected:
  static constexpr int patience = 60000;

  RunsInWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("window"));
    Talmesh::app::RecentFiles().clear();
    window = std::make_unique<Talmesh::app::MainWindow>();
    window->resize(700, 500);
    window->show();
  }

  ~RunsInWindow() override { Talmesh::app::RecentFiles().clear(); }

  QString write(const char* name, const std::string& text)
  {
    const QString path = folder.filePath(QString::fromUtf8(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return path;
  }

  bool waitUntilLoaded()
  {
    return QTest::qWaitFor([this] { return !window->isLoading(); }, patience);
  }

  /// Opens three runs in the XY plot.
  void openSample()
  {
    Talmesh::app::OpeningWishes options;
    options.file = write("runs.csv", sampleRuns()).toStdString();
    options.style = xyPlot;
    window->open(options);
    ASSERT_TRUE(waitUntilLoaded());
  }

  void drop(const QList<QUrl>& urls)
  {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    accepted = enter.isAccepted();
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &dropped);
  }

  PlotContainer& container() { return *window->plotWidget()->plotContainer(); }

  QMessageBox* messageBox() { return window->findChild<QMessageBox*>(); }

  QTemporaryDir folder;
  std::unique_ptr<Talmesh::app::MainWindow> window;
  bool accepted = false;
};

#endif
