#include "plot/DelimitedFiles.h"

#include <vtkDelimitedTextReader.h>
#include <vtkDelimitedTextWriter.h>
#include <vtkNew.h>
#include <vtkTable.h>

namespace Talmesh::plot
{

vtkSmartPointer<vtkTable> readDelimited(const std::string& fileName)
{
  vtkNew<vtkDelimitedTextReader> reader;
  reader->SetFileName(fileName.c_str());
  reader->SetHaveHeaders(true);
  reader->SetDetectNumericColumns(true);
  reader->SetForceDouble(true);
  reader->Update();
  return reader->GetOutput();
}

char* writeDelimited(vtkTable* table, const std::string& fileName)
{
  vtkNew<vtkDelimitedTextWriter> writer;
  writer->SetInputData(table);
  if (!fileName.empty())
  {
    writer->SetFileName(fileName.c_str());
    writer->Write();
    return nullptr;
  }
  writer->WriteToOutputStringOn();
  writer->Write();
  return writer->RegisterAndGetOutputString();
}

} // namespace Talmesh::plot
