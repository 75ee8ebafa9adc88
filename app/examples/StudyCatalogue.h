#ifndef StudyCatalogue_h
#define StudyCatalogue_h

#include "app/session/StudyFile.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// A computed study with a chart of its own. Texts are UTF-8; those of menus mark a letter with
/// "&".
struct CatalogueEntry
{
  /// The id of its chart.
  std::string id;
  /// The studies of one subject stand together in a menu of this name.
  std::string subject;
  std::string title;
  std::string toolTip;
  /// Computes the study; may run in any thread.
  StudyJob open;
};

/// All of them, those of one subject one after another.
std::vector<CatalogueEntry> studyCatalogue();

} // namespace Talmesh::app

#endif
