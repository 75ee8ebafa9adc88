#include "exports/ExportedNames.h"

#include <gtest/gtest.h>

using namespace Talmesh::exports;
using Lines = std::vector<std::string>;

TEST(ExportedNames, AreThoseThatTheMacroStandsBefore)
{
  const std::string header = "#define SHOWN __attribute__((visibility(\"default\")))\n"
                             "class Base;\n"
                             "namespace A::B\n{\n"
                             "struct Forward;\n"
                             "/// SHOWN in a comment; not here\n"
                             "class SHOWN Open : public Base, public C<int>\n"
                             "{\n  Open() { go(); }\n  void go();\n};\n"
                             "struct Half\n{\n  SHOWN ~Half();\n  int a = 0;\n};\n"
                             "SHOWN std::vector<int>\nmake(const std::string& name, int b = 3);\n"
                             "int hidden();\n"
                             "}\n"
                             "SHOWN inline std::mt19937 generator;\n";
  EXPECT_EQ(exportedNames(header, "SHOWN"),
            (Names{"A::B::Open", "A::B::Half::~Half", "A::B::make", "generator"}));
}

TEST(NamesOfSymbols, LeaveOutWhatTheyAreCalledWith)
{
  EXPECT_EQ(nameOfSymbol("A::B::make[abi:cxx11](std::vector<int>, void (*)(int))"), "A::B::make");
  EXPECT_EQ(nameOfSymbol("void std::sort<A::B*>(A::B*, A::B*)"), "std::sort");
  EXPECT_EQ(nameOfSymbol("std::vector<A::B, std::allocator<A::B> >::grow()"), "std::vector::grow");
  EXPECT_EQ(nameOfSymbol("generator"), "generator");
}

TEST(NamesOfSymbols, AreOfTheClassThatATableDescribes)
{
  EXPECT_EQ(nameOfSymbol("vtable for A::B"), "A::B");
  EXPECT_EQ(nameOfSymbol("typeinfo name for A::B"), "A::B");
  EXPECT_EQ(nameOfSymbol("non-virtual thunk to A::B::~B()"), "A::B::~B");
}

TEST(UnexpectedSymbols, AreNeitherShownNorMembersOfWhatIs)
{
  const Names shown{"Open", "A::make"};
  const Names own{"A", "Open", "Hidden"};
  const std::string sound = "0000000000001000 T Open::go(int)\n"
                            "0000000000001000 V vtable for Open\n"
                            "0000000000001000 T A::make(int)\n"
                            "0000000000001000 W void std::sort<A::B*>(A::B*, A::B*)\n"
                            "0000000000001000 W Foreign::list<A::B>::grow()\n"
                            "0000000000001000 D __bss_start\n";
  EXPECT_EQ(unexpectedSymbols(sound, shown, own), Lines());
  for (const std::string line :
       {"0000000000001000 T A::makeUp(int)", "0000000000001000 W Hidden::go()",
        "0000000000001000 V typeinfo for A::B", "0000000000001000 T Opened::go(int)",
        "0000000000001000 T Foreign::go()", "0000000000001000 B counter"})
    EXPECT_EQ(unexpectedSymbols(sound + line + "\n", shown, own), Lines{line});
}
