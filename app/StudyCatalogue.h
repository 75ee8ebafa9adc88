#ifndef StudyCatalogue_h
#define StudyCatalogue_h

#include "app/StudyLoader.h"

#include <QString>

#include <string>
#include <vector>

namespace Talmesh::app
{

/// A computed study with a chart of its own.
struct CatalogueEntry
{
  /// The id of its chart.
  std::string id;
  /// The studies of one subject stand together in a menu of this name.
  QString subject;
  QString title;
  QString toolTip;
  /// Computes the study; may run in any thread.
  StudyLoader::Job open;
};

/// All of them, those of one subject one after another.
std::vector<CatalogueEntry> studyCatalogue();

} // namespace Talmesh::app

#endif
