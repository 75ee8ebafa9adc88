#ifndef VtkCompat_h
#define VtkCompat_h

#include <vtkSetGet.h>
#include <vtkVersion.h>

/// vtkTypeMacro that is followed by a semicolon like any declaration. VTK's own ends in an access
/// label, after which a semicolon is one too many.
#define TALMESH_VTK_TYPE(thisClass, superclass)                                                    \
  vtkTypeMacro(thisClass, superclass)                                                              \
  static_assert(true, "ended by the user's semicolon")

/// The same for classes without a New() of their own.
#define TALMESH_VTK_ABSTRACT_TYPE(thisClass, superclass)                                           \
  vtkAbstractTypeMacro(thisClass, superclass)                                                      \
  static_assert(true, "ended by the user's semicolon")

/// Whether VTK has a second class of text, which every painting device must take as well.
#if __has_include(<vtkUnicodeString.h>)
#define TALMESH_VTK_HAS_UNICODE_STRING 1
#else
#define TALMESH_VTK_HAS_UNICODE_STRING 0
#endif

/// The class of text with which VTK's OpenGL device draws in the end, whichever it was given.
#if TALMESH_VTK_HAS_UNICODE_STRING
class vtkUnicodeString;
using VtkDrawnText = vtkUnicodeString;
#else
class vtkStdString;
using VtkDrawnText = vtkStdString;
#endif

#if VTK_VERSION_NUMBER < VTK_VERSION_CHECK(9, 2, 0)
#define TALMESH_VTK_SINCE_9_2 0
#else
#define TALMESH_VTK_SINCE_9_2 1
#endif

/// What a subclass of vtkPlotPoints calls to read its columns again.
#if TALMESH_VTK_SINCE_9_2
#define TALMESH_VTK_UPDATE_CACHE(table) UpdateCache()
#else
#define TALMESH_VTK_UPDATE_CACHE(table) UpdateTableCache(table)
#endif

/// Charts may have their plots read their columns again by themselves.
#define TALMESH_VTK_CHARTS_READ_COLUMNS TALMESH_VTK_SINCE_9_2

/// Items hand over points as arrays too, for graphics cards that keep them.
#define TALMESH_VTK_DRAWS_ARRAYS TALMESH_VTK_SINCE_9_2

/// Parallel coordinates keep a brush that was reset as an empty one, which filters all rows.
#define TALMESH_VTK_KEEPS_RESET_BRUSHES TALMESH_VTK_SINCE_9_2

/// The scatter-plot matrix leaves axes of a single value without extent, and with each new layout
/// gives the large chart the axes of its cell instead of those of the pair that it shows.
#define TALMESH_VTK_MATRIX_LEAVES_AXES TALMESH_VTK_SINCE_9_2

#endif
