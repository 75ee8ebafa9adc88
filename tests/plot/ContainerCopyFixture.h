#ifndef ContainerCopyFixture_h
#define ContainerCopyFixture_h

#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <string>

inline const std::string invalidScene = "void PlotContainer::redraw(): invalid scene\n";

class ContainerCopyFixture : public PlotFixture
{
protected:
  /// Copies the container, which reports that the copy has no scene yet.
  std::unique_ptr<PlotContainer> copied()
  {
    const CapturedOutput output(std::cout);
    auto copy = std::make_unique<PlotContainer>(container);
    EXPECT_EQ(output.text(), invalidScene);
    return copy;
  }
};

#endif
