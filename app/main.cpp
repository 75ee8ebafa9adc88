#include "app/Batch.h"
#include "app/CommandLine.h"
#include "app/CommandLineHelp.h"
#include "app/EndingSignals.h"
#include "app/LastResort.h"
#include "app/session/FileNameCodec.h"
#include "app/session/KeptWork.h"
#include "app/window/MainWindow.h"
#include "app/window/SessionController.h"
#include "widgets/Translation.h"

#include <QVTKOpenGLNativeWidget.h>

#include <QAccessible>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

namespace
{

using namespace Talmesh::app;

/// Set when Qt has found a display. What it says before is summed up in one line.
bool displayFound = false;

/// Qt ends a program that has no display with an abort; the user gets a line and an exit status.
void reportQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
  if (type == QtFatalMsg)
    std::_Exit(fail("the display cannot be opened"));
  // A missing runtime folder does not concern the user of a plot.
  const bool noise = type == QtDebugMsg || message.startsWith(QLatin1String("QStandardPaths:"));
  if (!noise && displayFound)
    std::cerr << message.toStdString() << std::endl;
}

/// A program that prints into a full disk has not done what was asked.
int print(const std::string& text)
{
  errno = 0;
  std::cout << text << std::flush;
  if (std::cout)
    return EXIT_SUCCESS;
  return fail(std::string("cannot write the output: ") + std::strerror(errno != 0 ? errno : EIO));
}

int showWindow(const CommandLineOptions& options)
{
  MainWindow window;
  // What the command line names must be there; what is opened later may fail in the window.
  QObject::connect(&window, &MainWindow::commandLineFailed, &window,
                   [](const QString& message)
                   { QCoreApplication::exit(fail(message.toStdString())); });
  window.show();
  window.open(options);
  window.sessionController().keepIn(stateFolder());
  const EndingSignals ending([&window] { window.sessionController().keepNow(); });
  return QCoreApplication::exec();
}

int writeFiles(const CommandLineOptions& options)
{
  const std::string error = runBatch(options);
  return error.empty() ? EXIT_SUCCESS : fail(error);
}

/// Needs neither a display nor an application.
int describe(const CommandLineOptions& options)
{
  constexpr int unsure = 3;
  ImportReport report;
  const Result<std::string> description = describeFile(options, report);
  if (description.hasValue())
    return print(description.value());
  const int refused = fail(description.error());
  if (!report.isUnsure())
    return refused;
  print(jsonOf(report));
  return unsure;
}

int runProgram(int argc, char** argv)
{
  // Qt asks for the encoding of names when it first meets one.
  std::setlocale(LC_CTYPE, "");
  const FileNameCodec allNames;
  const Result<CommandLineOptions> line = parseCommandLine({argv + std::min(argc, 1), argv + argc});
  if (!line.hasValue())
    return fail(line.error());
  const CommandLineOptions& options = line.value();
  if (options.help)
    return print(commandLineHelp());
  if (options.version)
    return print("talmesh-plot " TALMESH_VERSION "\n");
  if (options.describes)
    return describe(options);

  if (!startSharedThreads())
    std::_Exit(fail("there is not enough memory"));
  qInstallMessageHandler(reportQtMessage);
  QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // later ones always scale
  QCoreApplication::setAttribute(options.writesOnly() ? Qt::AA_DisableHighDpiScaling
                                                      : Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
  QCoreApplication::setOrganizationName(QStringLiteral("Talmesh"));
  QCoreApplication::setApplicationName(QStringLiteral("talmesh-plot"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TALMESH_VERSION));
  // Qt has options of the same names as ours, so it sees none.
  int programNameOnly = 1;
  const bool paints = options.writesPictures() || !options.writesOnly();
  // Tables need no display, so none is asked for.
  if (!paints)
    qputenv("QT_QPA_PLATFORM", "offscreen");
  ClearlyEndingApplication application(programNameOnly, argv);
  displayFound = true;
  // Starts the thread of the accessibility bus. The first window would do so when memory may be too
  // short for it, and wait for ever.
  QAccessible::isActive();
  Talmesh::installTranslation(application, QLocale::system());
  // Qt takes over the user's locale, in which PDF and CSV would get decimal commas.
  std::setlocale(LC_NUMERIC, "C");
  QOpenGLContext context;
  if (paints && !context.create())
    return fail("OpenGL is not available on this display");
  const int status = options.writesOnly() ? writeFiles(options) : showWindow(options);
  return application.hasFailed() ? EXIT_FAILURE : status;
}

} // namespace

int main(int argc, char** argv)
{
  takeSignalsBack();
  installLastResort();
  return endingClearly([&] { return runProgram(argc, argv); });
}
