#ifndef Translation_h
#define Translation_h

#include "../export/TalmeshPlotExport.h"

#include <QLocale>

class QCoreApplication;

namespace Talmesh
{

/// Lets the widgets of the library and the viewer speak the language of `locale`, as far as there
/// is a translation; German is built into the library. Qt's own texts follow if its translations
/// are installed. Call it once the application exists and before the first widget is made; widgets
/// that exist already stay as they are. The translators belong to the application.
/// @return whether the library speaks that language; English needs no translation and counts
TALMESHPLOT_EXPORT bool installTranslation(QCoreApplication& application,
                                           const QLocale& locale = QLocale());

} // namespace Talmesh

#endif
