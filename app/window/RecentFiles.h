#ifndef RecentFiles_h
#define RecentFiles_h

#include <QStringList>

namespace Talmesh::app
{

/// The files opened last, latest first, absolute and each once, kept in the user's settings.
class RecentFiles
{
public:
  static constexpr int most = 8;

  QStringList paths() const;
  void add(const QString& path);
  void remove(const QString& path);
  void clear();
};

} // namespace Talmesh::app

#endif
