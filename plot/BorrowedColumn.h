#ifndef BorrowedColumn_h
#define BorrowedColumn_h

#include "export/ViewerExport.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <boost/shared_ptr.hpp>

#include <string>

namespace Talmesh::plot
{

/// A column named `name` that uses `values` (`count` doubles) in place and never frees them.
/// `owner`, when given, lives at least as long as the column, so that the values outlive everything
/// that reads them; without one the caller answers for that. Null `values` give a column of NaNs.
TALMESHPLOT_VIEWER_EXPORT vtkSmartPointer<vtkDoubleArray>
borrowColumn(const std::string& name, double* values, vtkIdType count,
             const boost::shared_ptr<const void>& owner = {});

} // namespace Talmesh::plot

#endif
