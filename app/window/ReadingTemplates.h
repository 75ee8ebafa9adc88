#ifndef ReadingTemplates_h
#define ReadingTemplates_h

#include "app/import/ImportRequest.h"
#include "app/session/TableSample.h"

#include <QStringList>

#include <map>
#include <string>

namespace Talmesh::app
{

/// How the user had tables read that are told to be alike by their headers and by what parts their
/// fields, kept in the user's settings.
class ReadingTemplates
{
public:
  /// Of more the oldest one is forgotten.
  static constexpr int most = 100;

  /// What tables like this one are told by; empty where there is nothing to tell.
  /// @param several whether it is the first of several files
  static std::string keyOf(const TableSample& sample, bool several);

  /// Those kept now. Another thread may look into what it is given.
  static ReadingTemplates kept();

  /// What was said of tables like this one; null without that.
  const ImportRequest* find(const std::string& key) const;
  /// The same for files; reads their start. May run in any thread.
  const ImportRequest* findFor(const QStringList& paths, const ImportProgress& progress) const;
  bool isEmpty() const { return requests.empty(); }

  static void keep(const std::string& key, const ImportRequest& request);
  static void forget(const std::string& key);

private:
  std::map<std::string, ImportRequest> requests;
};

} // namespace Talmesh::app

#endif
