#ifndef PdfPages_h
#define PdfPages_h

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// What other programs make of a PDF; the package poppler-utils must be installed.

/// Standard output of a program.
inline QString outputOf(const QString& program, const QStringList& arguments)
{
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(30000) && process.exitCode() == 0) << program.toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

/// The only page as a picture of so many pixels per inch, 72 of which are its points.
inline QImage pageOf(const QString& pdf, int dotsPerInch = 72)
{
  const QTemporaryDir folder;
  const QString picture = folder.filePath(QStringLiteral("page"));
  outputOf(QStringLiteral("pdftoppm"),
           {QStringLiteral("-singlefile"), QStringLiteral("-png"), QStringLiteral("-r"),
            QString::number(dotsPerInch), pdf, picture});
  return QImage(picture + QStringLiteral(".png"));
}

/// The text that can be searched and copied.
inline QString textOf(const QString& pdf)
{
  return outputOf(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
}

#endif
