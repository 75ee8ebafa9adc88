#ifndef LineNumbers_h
#define LineNumbers_h

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The lines of rows in a file. Rows of lines that follow each other take no memory of their own.
class LineNumbers
{
public:
  void push_back(std::size_t line);
  void clear();

  std::size_t operator[](std::size_t row) const;
  std::size_t size() const { return rows; }
  bool empty() const { return rows == 0; }

private:
  /// Rows one below the other, up to the start of the next stretch.
  struct Stretch
  {
    std::size_t row;
    std::size_t line;
  };

  std::vector<Stretch> stretches;
  std::size_t rows = 0;
};

} // namespace Talmesh::app

#endif
