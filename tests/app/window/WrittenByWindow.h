#ifndef WrittenByWindow_h
#define WrittenByWindow_h

#include "app/window/ExportController.h"
#include "app/window/MainWindow.h"

#include <QTest>

#include <string>

/// Has a window write what it shows, and waits for it.
/// @return why it was not written; empty on success
inline std::string writtenBy(Talmesh::app::MainWindow& window, const QString& path,
                             const Talmesh::app::ExportWishes& wishes = {})
{
  using Talmesh::app::ExportController;
  std::string error = "nothing was announced";
  ExportController& exports = window.exportController();
  const auto heard = QObject::connect(&exports, &ExportController::written,
                                      [&error](const QString&, const std::string& announced)
                                      { error = announced; });
  exports.exportTo(path, wishes);
  EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.isBusy(); }, 60000));
  QObject::disconnect(heard);
  return error;
}

#endif
