#ifndef PeoplesTables_h
#define PeoplesTables_h

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <string>

#include "RunningProgram.h"

/// Tables as people have them, each with what a reader of it sees in it at once.
class PeoplesTables : public RunningProgram
{
protected:
  QJsonObject describe(const QString& file, const QStringList& options = {}, int status = 0)
  {
    environment.remove(QStringLiteral("DISPLAY"));
    const Ended ended = run(QStringList{"--describe", file} + options);
    EXPECT_FALSE(ended.crashed);
    EXPECT_EQ(ended.status, status) << ended.errors.toStdString();
    return QJsonDocument::fromJson(ended.output).object();
  }

  /// With the ends of lines and the mark of other systems, too.
  void expectInVariants(const char* name, const std::string& text, const QJsonObject& expected)
  {
    expectUnderstood(write(name, text), expected);
    expectUnderstood(write(name, "\xef\xbb\xbf" + text), expected);
    expectUnderstood(write(name, replaced(text, '\n', "\r\n")), expected);
    expectUnderstood(write(name, replaced(text, '\n', "\r")), expected);
  }

  /// With what spreadsheets of other countries and instruments write, too.
  void expectAsExported(const std::string& commas, const QJsonObject& expected)
  {
    expectInVariants("table.csv", commas, expected);
    expectUnderstood(write("table.tsv", replaced(commas, ',', "\t")), expected);
    expectUnderstood(write("table.csv", replaced(replaced(commas, ',', ";"), '.', ",")), expected);
  }

  void expectUnderstood(const QString& file, const QJsonObject& expected)
  {
    const QJsonObject json = describe(file);
    for (const QString& key : expected.keys())
      EXPECT_EQ(textOf(json[key]), textOf(expected[key])) << key.toStdString();
  }

  /// The options that the program names when it asks.
  QStringList askedOptions(const QString& file)
  {
    QStringList options;
    const QJsonObject json = describe(file, {}, 3);
    for (const QJsonValue& candidate : json["candidates"].toArray())
      options << candidate.toObject()["option"].toString();
    return options;
  }

  static std::string replaced(const std::string& text, char from, const char* to)
  {
    return QString::fromStdString(text).replace(QLatin1Char(from), QLatin1String(to)).toStdString();
  }

  static std::string textOf(const QJsonValue& value)
  {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
  }
};

inline std::string number(double value)
{
  return QByteArray::number(value, 'g', 6).toStdString();
}

/// Joins what `row` says of 0, 1, 2, ...
inline std::string rows(int count, const std::function<std::string(int)>& row)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += row(i) + "\n";
  return text;
}

/// An ODE's course of twenty times, named A and B, under `names`.
inline std::string course(const std::string& names)
{
  return names + "\n" +
         rows(20,
              [](int t) { return std::to_string(t) + "," + number(t * 1.5 + 0.25) + ",3.5e-2"; });
}

#endif
