#ifndef German_h
#define German_h

#include "widgets/Translation.h"

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, the application speaks German.
class German
{
public:
  German()
      : installed(Talmesh::installTranslation(*QCoreApplication::instance(),
                                              QLocale(QLocale::German, QLocale::Germany)))
  {
  }
  ~German() { qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>()); }
  German(const German&) = delete;
  German& operator=(const German&) = delete;

  const bool installed;
};

#endif
