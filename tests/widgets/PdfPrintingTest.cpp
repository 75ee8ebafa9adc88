#include "widgets/PdfPrinting.h"

#include <gtest/gtest.h>

namespace
{

struct NameCase
{
  const char* asked;
  const char* written;
};

class ExportNames : public ::testing::TestWithParam<NameCase>
{
};

TEST_P(ExportNames, GiveTheFileThatWasAskedFor)
{
  EXPECT_EQ(exportPrefix(GetParam().asked) + ".pdf", GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    Suffixes, ExportNames,
    ::testing::Values(NameCase{"plot.pdf", "plot.pdf"}, NameCase{"plot", "plot.pdf"},
                      NameCase{"a.pdf.pdf", "a.pdf.pdf"}, NameCase{".pdf", ".pdf.pdf"},
                      NameCase{"a.pdf", "a.pdf.pdf"}, NameCase{"ab.pdf", "ab.pdf"},
                      NameCase{"ab.pdf_x", "ab_x.pdf"}, NameCase{"plot.PDF", "plot.PDF.pdf"},
                      NameCase{"plot.png", "plot.png.pdf"}));

} // namespace
