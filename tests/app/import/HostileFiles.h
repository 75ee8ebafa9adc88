#ifndef HostileFiles_h
#define HostileFiles_h

#include "app/session/StudyFile.h"

#include <gtest/gtest.h>

#include <QString>

#include <functional>
#include <string>
#include <vector>

/// A file that nobody means well with.
struct HostileFile
{
  std::string what;
  /// Makes it; the size in bytes that it takes on the disk bounds the memory it may cost.
  std::function<void(const QString& path)> make;
  /// What the refusal must say; empty where the file may as well be read.
  std::string refusal;
};

/// Writes a file of these bytes.
void writeBytes(const QString& path, const std::string& bytes);

std::function<void(const QString&)> bytes(const std::string& content);

/// Opens each of the files: it must be read or refused in a line, within a second of the
/// processor's time and in memory of the order of its size.
void expectHarmless(const std::vector<HostileFile>& files);

/// So many copies of a text.
std::string repeated(const std::string& text, std::size_t times);

#endif
