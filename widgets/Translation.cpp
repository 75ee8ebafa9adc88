#include "widgets/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

/// Takes the catalogues along into programs that link an archive; the macro must not be used within
/// a namespace.
static void keepCatalogues()
{
  Q_INIT_RESOURCE(talmeshplot);
}

namespace Talmesh
{

namespace
{

bool install(QCoreApplication& application, const QLocale& locale, const QString& name,
             const QString& folder)
{
  auto translator = std::make_unique<QTranslator>(&application);
  if (!translator->load(locale, name, QStringLiteral("_"), folder))
    return false;
  return QCoreApplication::installTranslator(translator.release());
}

QString folderOfQtsTranslations()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
  return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
  return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

bool installTranslation(QCoreApplication& application, const QLocale& locale)
{
  if (locale.language() == QLocale::English || locale.language() == QLocale::C)
    return true;
  keepCatalogues();
  if (!install(application, locale, QStringLiteral("talmeshplot"),
               QStringLiteral(":/talmeshplot/translations")))
    return false;
  // Without it only the buttons of Qt's own dialogs stay English.
  install(application, locale, QStringLiteral("qtbase"), folderOfQtsTranslations());
  return true;
}

} // namespace Talmesh
