// Delimited text: what is read, and what is refused with its line.
#include "TextReader.h"
#include "host_test.h"

namespace {

using zxhost::TextColumn;

class TextReader : public host_test::HostTest {
  protected:
    bool Read(const std::string& bytes) {
        path = WriteFile("data.txt", bytes);
        error = "";
        return zxhost::ReadTextColumns(path, &columns, &error);
    }
    // The error without the path in front of it.
    std::string Refused(const std::string& bytes) {
        EXPECT_FALSE(Read(bytes));
        EXPECT_TRUE(columns.empty());
        EXPECT_EQ(error.substr(0, path.size() + 1), path + ":");
        return error.substr(std::min(error.size(), path.size() + 1));
    }

    std::string path;
    std::string error;
    std::vector<TextColumn> columns;
};

TEST_F(TextReader, TakesEveryDelimiter) {
    for (const char* text : {"1,2.5\n3,4\n", "1;2.5\n3;4\n", "1\t2.5\n3\t4\n", "  1   2.5\n3 4  \n",
                             "1 , 2.5\n3 , 4\n"}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(Read(text)) << error;
        ASSERT_EQ(columns.size(), 2u);
        EXPECT_EQ(columns[0].values, (std::vector<double>{1, 3}));
        EXPECT_EQ(columns[1].values, (std::vector<double>{2.5, 4}));
    }
}

TEST_F(TextReader, TakesNamesAndUnits) {
    ASSERT_TRUE(Read("Time (ms),\"Vm [mV]\",Im\n0,-70,1e-3\n")) << error;
    EXPECT_EQ(columns[0].name, "Time");
    EXPECT_EQ(columns[0].units, "ms");
    EXPECT_EQ(columns[1].name, "Vm");
    EXPECT_EQ(columns[1].units, "mV");
    EXPECT_EQ(columns[2].name, "Im");
    EXPECT_EQ(columns[2].units, "");
    EXPECT_EQ(columns[2].values, (std::vector<double>{0.001}));
    ASSERT_TRUE(Read("Time\tVm\n(s)\tmV\n+0.5\t-7e1\n")) << error;
    EXPECT_EQ(columns[0].units, "s");
    EXPECT_EQ(columns[1].units, "mV");
    EXPECT_EQ(columns[0].values, (std::vector<double>{0.5}));
}

TEST_F(TextReader, PassesOverCommentsEmptyLinesAndMarks) {
    ASSERT_TRUE(Read("\xEF\xBB\xBF# from the rig\r\n\r\n1;2\r\n\r\n3;4")) << error;
    EXPECT_EQ(columns[1].values, (std::vector<double>{2, 4}));
}

TEST_F(TextReader, RefusesFilesThatHoldNoText) {
    EXPECT_EQ(Refused(""), " the file is empty");
    EXPECT_EQ(Refused("# nothing\n\n"), " the file has no row of numbers");
    EXPECT_EQ(Refused("time,value\n"), " the file has no row of numbers");
    EXPECT_EQ(Refused(std::string("1,2\n3,\0\n", 8)),
              "2: this is not a text file (there is a byte 0)");
    EXPECT_FALSE(zxhost::ReadTextColumns(scratch.File("none.txt"), &columns, &error));
    EXPECT_EQ(error.substr(0, scratch.File("none.txt").size() + 18),
              scratch.File("none.txt") + ": cannot be opened");
}

TEST_F(TextReader, RefusesRaggedRowsWithTheirLine) {
    EXPECT_EQ(Refused("1;2\n3;4;5\n"), "2: 3 values where the lines before have 2");
    EXPECT_EQ(Refused("1,2\n3\n"), "2: 1 value where the lines before have 2");
    EXPECT_EQ(Refused("1,2\n3,\n"), "2: a value is missing in column 2");
    EXPECT_EQ(Refused("a;b\nms;mV;pA\n1;2\n"), "2: 3 values where the lines before have 2");
}

TEST_F(TextReader, RefusesTextInNumberColumns) {
    EXPECT_EQ(Refused("a,b\n1,2\n3,off\n"), "3: \"off\" in column 2 is not a number");
    EXPECT_EQ(Refused("1,2\n3,nan\n"), "2: \"nan\" in column 2 is not a number");
    EXPECT_EQ(Refused("1,2\n3,1e999\n"), "2: \"1e999\" in column 2 is not a number");
    EXPECT_EQ(Refused("a,b\nms,mV\nx,y\n1,2\n"),
              "3: text where the first row of numbers should be");
}

TEST_F(TextReader, TakesManyColumnsAndRefusesTooMany) {
    const auto row = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i) text += (i ? ";" : "") + std::to_string(i);
        return text + "\n";
    };
    ASSERT_TRUE(Read(row(5000) + row(5000) + row(5000))) << error;
    EXPECT_EQ(columns.size(), 5000u);
    EXPECT_EQ(columns[4999].values, (std::vector<double>{4999, 4999, 4999}));
    EXPECT_EQ(Refused(row(10001)), "1: there are more than 10000 columns");
}

TEST_F(TextReader, TakesRowsThatCrossThePiecesItReads) {
    std::string text;
    constexpr int kRows = 200000;
    for (int i = 0; i < kRows; ++i) text += std::to_string(i) + " " + std::to_string(-i) + ".25\n";
    ASSERT_TRUE(Read(text)) << error;
    ASSERT_EQ(columns[0].values.size(), static_cast<std::size_t>(kRows));
    for (int i = 0; i < kRows; ++i) ASSERT_EQ(columns[0].values[static_cast<std::size_t>(i)], i);
    EXPECT_EQ(columns[1].values.back(), -(kRows - 1) - 0.25);
}

TEST_F(TextReader, TellsItsProgressAndCanBeStopped) {
    path = WriteFile("data.txt", "1 2\n3 4\n");
    double last = 0.0;
    EXPECT_TRUE(zxhost::ReadTextColumns(path, &columns, &error, [&](double fraction) {
        last = fraction;
        return true;
    }));
    EXPECT_EQ(last, 1.0);
    EXPECT_FALSE(zxhost::ReadTextColumns(path, &columns, &error, [](double) { return false; }));
    EXPECT_EQ(error, path + ": reading was stopped");
    EXPECT_TRUE(columns.empty());
}

TEST_F(TextReader, TakesDecimalCommasWhereCommasSeparateNothing) {
    for (const char* text :
         {"0,25;-75,5\n1;2,5e1\n", "0,25\t-75,5\n1\t2,5e1\n", "0,25 -75,5\n1  2,5e1\n",
          "t Vm\n0,25 -75,5\n1 2,5e1\n", "t;Vm\n0,25;-75,5\n1;2,5e1\n"}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(Read(text)) << error;
        ASSERT_EQ(columns.size(), 2u);
        EXPECT_EQ(columns[0].values, (std::vector<double>{0.25, 1}));
        EXPECT_EQ(columns[1].values, (std::vector<double>{-75.5, 25}));
    }
    ASSERT_TRUE(Read("Vm\n-75,5\n-7\n")) << error;
    EXPECT_EQ(columns[0].values, (std::vector<double>{-75.5, -7}));
}

TEST_F(TextReader, RefusesPointsAndCommasInOneFile) {
    EXPECT_EQ(Refused("1;2\n1,5;2\n2;2.5\n"),
              "3: \"2.5\" in column 2 is not a number: the numbers before have decimal commas");
    EXPECT_EQ(Refused("1.5;2\n2;2,5\n"),
              "2: \"2,5\" in column 2 is not a number: the numbers before have decimal points");
    EXPECT_EQ(Refused("1;2\n1.234,5;2\n"), "2: \"1.234,5\" in column 1 is not a number");
    EXPECT_EQ(Refused("1;2\n1,2,3;2\n"), "2: \"1,2,3\" in column 1 is not a number");
}

// "0,25" is a quarter to some and two columns to others.
TEST_F(TextReader, RefusesCommasThatMayBeEither) {
    const std::string either =
        " the commas may separate columns or decimals; --delimiter comma says that they separate "
        "columns, and with decimal commas the values need tabs, semicolons or blanks between them";
    EXPECT_EQ(Refused("0,25\n1,50\n"), either);
    EXPECT_EQ(Refused("0,0,-75,68\n0,25,-75,62\n"), either);
    EXPECT_EQ(Refused("Time,Vm\n0,0,-75,68\n"),
              "2: 4 values where the lines before have 2; with decimal commas the values need tabs "
              "or semicolons between them");
    // A heading, a point, a sign or a third column shows what the commas are.
    EXPECT_TRUE(Read("Time,Vm\n0,25\n1,50\n")) << error;
    EXPECT_TRUE(Read("0,25\n1,50.5\n")) << error;
    EXPECT_TRUE(Read("0,-25\n1,50\n")) << error;
    EXPECT_TRUE(Read("0,25,1\n1,50,2\n")) << error;
    path = WriteFile("data.txt", "0,25\n1,50\n");
    ASSERT_TRUE(zxhost::ReadTextColumns(path, &columns, &error, nullptr, ',')) << error;
    EXPECT_EQ(columns[1].values, (std::vector<double>{25, 50}));
}

TEST_F(TextReader, TakesTheDelimiterThatTheCallerSays) {
    path = WriteFile("data.txt", "1,5 2,5\n");
    EXPECT_FALSE(zxhost::ReadTextColumns(path, &columns, &error, nullptr, ','));
    EXPECT_EQ(error, path + ":1: \"5 2\" in column 2 is not a number");
    EXPECT_EQ(zxhost::DelimiterOf("tab"), '\t');
    EXPECT_EQ(zxhost::DelimiterOf("semicolon"), ';');
    EXPECT_EQ(zxhost::DelimiterOf("comma"), ',');
    EXPECT_EQ(zxhost::DelimiterOf("blank"), ' ');
    EXPECT_EQ(zxhost::DelimiterOf("colon"), 0);
}

TEST_F(TextReader, RefusesTextThatIsNotUtf8WithAHint) {
    const std::string utf16 =
        " this is UTF-16 text; save it as UTF-8 (in a spreadsheet: \"CSV UTF-8\")";
    EXPECT_EQ(Refused(std::string("\xFF\xFE"
                                  "1\0,\0"
                                  "2\0\n\0",
                                  10)),
              utf16);
    EXPECT_EQ(Refused(std::string("\xFE\xFF\0"
                                  "1\0,\0"
                                  "2\0\n",
                                  10)),
              utf16);
    EXPECT_EQ(Refused(std::string("1\0,\0"
                                  "2\0\n\0",
                                  8)),
              utf16);
    EXPECT_EQ(Refused(std::string("\0"
                                  "1\0,\0"
                                  "2\0\n",
                                  8)),
              utf16);
    EXPECT_EQ(Refused("Time,I (\xB5"
                      "A)\n0,1\n"),
              "1: byte B5 at place 9 is not UTF-8; save the file as UTF-8");
    ASSERT_TRUE(Read("Time,I (µA)\n0,1\n")) << error;
    EXPECT_EQ(columns[1].units, "µA");
}

TEST_F(TextReader, RefusesSignsThatAreTooMany) {
    EXPECT_EQ(Refused("a,b\n1,2\n+-3,4\n"), "3: \"+-3\" in column 1 is not a number");
    ASSERT_TRUE(Read("a,b\n1,2\n+3,4\n")) << error;
    EXPECT_EQ(columns[0].values, (std::vector<double>{1, 3}));
}

}  // namespace
