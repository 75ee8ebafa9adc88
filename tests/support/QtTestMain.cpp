#include <QVTKOpenGLNativeWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QSurfaceFormat>

int main(int argc, char** argv)
{
  ::testing::InitGoogleTest(&argc, argv);
  // Test discovery must work on a machine without a display.
  if (::testing::GTEST_FLAG(list_tests))
    return RUN_ALL_TESTS();
  QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
