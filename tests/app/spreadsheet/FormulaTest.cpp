#include "app/spreadsheet/SheetCalculator.h"

#include "app/spreadsheet/Function.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** A sheet of 20 by 10 cells with a small table at A1:C4 and some odd cells in column E. */
core::spreadsheet::SheetGrid sampleGrid()
{
    core::spreadsheet::SheetGrid grid{20, 10, {}};
    const auto set = [&grid](const QString& address, const QString& text) {
        grid.cells[referenceFromText(address)->position].text = text;
    };
    set(u"A1"_s, u"Ann"_s);
    set(u"B1"_s, u"10"_s);
    set(u"C1"_s, u"1.5"_s);
    set(u"A2"_s, u"Bert"_s);
    set(u"B2"_s, u"20"_s);
    set(u"C2"_s, u"TRUE"_s);
    set(u"A3"_s, u"Cleo"_s);
    set(u"B3"_s, u"30"_s);
    set(u"C3"_s, u"=1/0"_s);
    set(u"A4"_s, u"an%1"_s);
    set(u"B4"_s, u"40"_s);
    set(u"E1"_s, u"=\"\""_s);
    set(u"E2"_s, u"12%"_s);
    set(u"E3"_s, u"00\U0001F40Dab"_s);
    return grid;
}

QString evaluated(const QString& formula)
{
    SheetCalculator sheet(sampleGrid());
    const CellPosition position = referenceFromText(u"J20"_s)->position;
    sheet.setText(position, formula);
    return displayText(sheet.value(position));
}

struct FormulaCase
{
    QString formula;
    QString expected;
};

void expectAll(std::initializer_list<FormulaCase> cases)
{
    for (const FormulaCase& row : cases)
        EXPECT_EQ(evaluated(row.formula), row.expected) << row.formula.toStdString();
}

} // namespace

TEST(Formula, operatorsBindAsInSpreadsheets)
{
    expectAll({
        {u"=1+2*3"_s, u"7"_s},       {u"=(1+2)*3"_s, u"9"_s},
        {u"=-2^2"_s, u"4"_s},        {u"=0-2^2"_s, u"-4"_s},
        {u"=2^3^2"_s, u"64"_s},      {u"=2^-1"_s, u"0.5"_s},
        {u"=10-4-3"_s, u"3"_s},      {u"=100/10/5"_s, u"2"_s},
        {u"=50%%*200"_s, u"1"_s},    {u"=-5%"_s, u"-0.05"_s},
        {u"=1+1&2*2"_s, u"24"_s},    {u"=\"a\"&1=\"A1\""_s, u"TRUE"_s},
        {u"=1<2=TRUE"_s, u"TRUE"_s}, {u"=--\"3\""_s, u"3"_s},
        {u"= 1 + .5E1 "_s, u"6"_s},  {u"=\"say \"\"hi\"\"\""_s, u"say \"hi\""_s},
        {u"=0.1+0.2"_s, u"0.3"_s},   {u"=10^20"_s, u"1E+20"_s},
        {u"=0*-1"_s, u"0"_s},
    });
}

TEST(Formula, valuesOfOneKindStandInForOthers)
{
    expectAll({
        {u"=B1+C2"_s, u"11"_s},
        {u"=E2*100"_s, u"12"_s},
        {u"=A1*1"_s, u"#VALUE!"_s},
        {u"=D9+1"_s, u"1"_s},
        {u"=D9"_s, u"0"_s},
        {u"=D9&\"\""_s, QString()},
        {u"=D9=0"_s, u"TRUE"_s},
        {u"=D9=\"\""_s, u"TRUE"_s},
        {u"=D9=FALSE"_s, u"TRUE"_s},
        {u"=1=\"1\""_s, u"FALSE"_s},
        {u"=9<\"1\""_s, u"TRUE"_s},
        {u"=\"z\"<FALSE"_s, u"TRUE"_s},
        {u"=\"ANN\"=A1"_s, u"TRUE"_s},
        {u"=A1:A2"_s, u"#VALUE!"_s},
        {u"=B1:B1+1"_s, u"11"_s},
        {u"=$B$1+b1"_s, u"20"_s},
    });
}

TEST(Formula, whatCannotBeIsAnError)
{
    expectAll({
        {u"=1/0"_s, u"#DIV/0!"_s},        {u"=C3+1"_s, u"#DIV/0!"_s},
        {u"=SUM(C1:C3)"_s, u"#DIV/0!"_s}, {u"=FLY(1)"_s, u"#NAME?"_s},
        {u"=north"_s, u"#NAME?"_s},       {u"=K1"_s, u"#REF!"_s},
        {u"=ZZZ1"_s, u"#NAME?"_s},        {u"=SUM(K1:L9)"_s, u"#REF!"_s},
        {u"=#REF!+1"_s, u"#REF!"_s},      {u"=SQRT(-1)"_s, u"#NUM!"_s},
        {u"=9E307*10"_s, u"#NUM!"_s},     {u"=0^0"_s, u"#NUM!"_s},
        {u"=0^-1"_s, u"#DIV/0!"_s},       {u"=(0-8)^(1/3)"_s, u"#NUM!"_s},
        {u"=J20"_s, u"#CIRC!"_s},         {u"=SUM(J1:J20)"_s, u"#CIRC!"_s},
        {u"=NA()"_s, u"#N/A"_s},          {u"=IFERROR(1/0,\"none\")"_s, u"none"_s},
        {u"=IFERROR(5,1/0)"_s, u"5"_s},   {u"=IFNA(1/0,1)"_s, u"#DIV/0!"_s},
        {u"=IFNA(NA(),1)"_s, u"1"_s},     {u"=ISERROR(C3)"_s, u"TRUE"_s},
    });
}

TEST(Formula, unreadableFormulasSayWhy)
{
    const struct
    {
        QString formula;
        QString message;
    } cases[] = {
        {QString(), u"The formula ends too early."_s},
        {u"1+"_s, u"The formula ends too early."_s},
        {u"(1"_s, u"A closing parenthesis is missing."_s},
        {u"1)"_s, u"\")\" cannot stand where it does."_s},
        {u"1 2"_s, u"\"2\" cannot stand where it does."_s},
        {u"\"a"_s, u"A text is not closed: a quotation mark is missing."_s},
        {u"1 ? 2"_s, u"\"?\" has no meaning here."_s},
        {u"#WHAT!"_s, u"\"#\" has no meaning here."_s},
        {u"A1:"_s, u"The formula ends too early."_s},
        {u"A1:2"_s, u"\"2\" cannot stand where it does."_s},
        {u"SUM()"_s, u"SUM does not take 0 argument(s)."_s},
        {u"PI(1)"_s, u"PI does not take 1 argument(s)."_s},
        {u"ROUND(1,2,3)"_s, u"ROUND does not take 3 argument(s)."_s},
        {QString(65, u'('), u"The formula is nested too deeply. Split it over several cells."_s},
        {QString(5'000, u'('), u"The formula is nested too deeply. Split it over several cells."_s},
        {QString(5'000, u'-') + u'1', u"The formula is nested too deeply. Split it over several cells."_s},
        {u'1' + QString(5'000, u'%'), u"The formula is nested too deeply. Split it over several cells."_s},
        {QString(8'193, u' '), u"The formula is longer than 8192 characters. Split it over several cells."_s},
    };
    for (const auto& row : cases) {
        const auto formula = Formula::parse(row.formula);
        EXPECT_FALSE(formula.isOk()) << row.formula.left(20).toStdString();
        EXPECT_EQ(formula.message(), row.message) << row.formula.left(20).toStdString();
        EXPECT_EQ(evaluated(u'=' + row.formula), u"#VALUE!");
    }
    EXPECT_EQ(evaluated(u"=1"_s + QString(u"+1"_s).repeated(4'000)), u"4001");
    // Each level asks for its argument once: twice would never end.
    EXPECT_EQ(
        evaluated(u"="_s + QString(u"IFERROR("_s).repeated(60) + u"NA()"_s + QString(u",7)"_s).repeated(60)),
        u"7");
}

TEST(Formula, numberFunctions)
{
    expectAll({
        {u"=ROUND(2.5,0)&ROUND(-2.5,0)"_s, u"3-3"_s},
        {u"=ROUND(1.005,2)"_s, u"1.01"_s},
        {u"=ROUND(1234,-2)"_s, u"1200"_s},
        {u"=ROUNDUP(1.1,1)"_s, u"1.1"_s},
        {u"=ROUNDUP(-1.11,1)"_s, u"-1.2"_s},
        {u"=ROUNDDOWN(-1.19,1)"_s, u"-1.1"_s},
        {u"=ROUND(1.5,400)&ROUND(1.5,-400)"_s, u"1.50"_s},
        {u"=ABS(-3)+SIGN(-3)+SIGN(0)"_s, u"2"_s},
        {u"=MOD(-7,3)&MOD(7,-3)&MOD(6,3)"_s, u"2-20"_s},
        {u"=MOD(1,0)"_s, u"#DIV/0!"_s},
        {u"=INT(-1.5)"_s, u"-2"_s},
        {u"=SQRT(16)+POWER(2,3)"_s, u"12"_s},
        {u"=LN(EXP(1))"_s, u"1"_s},
        {u"=LOG(100)&LOG(8,2)&LOG10(1000)"_s, u"233"_s},
        {u"=LOG(1,1)"_s, u"#DIV/0!"_s},
        {u"=LN(0)"_s, u"#NUM!"_s},
        {u"=ROUND(PI(),4)"_s, u"3.1416"_s},
    });
}

TEST(Formula, statisticsLookAtNumbers)
{
    expectAll({
        {u"=SUM(B1:B4)"_s, u"100"_s},
        {u"=SUM(A1:C2,5,\"5\",TRUE)"_s, u"42.5"_s},
        {u"=SUM(\"x\")"_s, u"#VALUE!"_s},
        {u"=AVERAGE(B1:B4)"_s, u"25"_s},
        {u"=AVERAGE(A1:A4)"_s, u"#DIV/0!"_s},
        {u"=MIN(B1:B4)&MAX(B1:B4)&MIN(A1:A4)"_s, u"10400"_s},
        {u"=MEDIAN(B1:B4)&MEDIAN(3,1,2)"_s, u"252"_s},
        {u"=MEDIAN(A1:A4)"_s, u"#NUM!"_s},
        {u"=PRODUCT(B1:B2,2)&PRODUCT(A1:A4)"_s, u"4000"_s},
        {u"=COUNT(A1:C4,1,\"1\",\"x\")"_s, u"7"_s},
        {u"=COUNTA(A1:E4)"_s, u"14"_s},
        {u"=COUNTBLANK(D1:E4)"_s, u"6"_s},
        {u"=COUNTIF(B1:B4,\">=20\")"_s, u"3"_s},
        {u"=COUNTIF(B1:B4,20)"_s, u"1"_s},
        {u"=COUNTIF(A1:A4,\"an*\")"_s, u"2"_s},
        {u"=COUNTIF(A1:A4,\"<>Ann\")"_s, u"3"_s},
        {u"=COUNTIF(A1:A5,\"<>Ann\")"_s, u"4"_s},
        {u"=COUNTIF(D1:E4,\"\")"_s, u"6"_s},
        {u"=SUMIF(B1:B4,\">15\")"_s, u"90"_s},
        {u"=SUMIF(A1:A4,\"?ert\",B1:B4)"_s, u"20"_s},
        {u"=SUMIF(A1:A4,\"*\",B1:B2)"_s, u"30"_s},
        {u"=AVERAGEIF(A1:A4,\"<c\",B1:B4)"_s, u"23.3333333333333"_s},
        {u"=AVERAGEIF(A1:A4,\"nobody\",B1:B4)"_s, u"#DIV/0!"_s},
        {u"=SMALL(B1:B4,2)&LARGE(B1:B4,1)"_s, u"2040"_s},
        {u"=LARGE(B1:B4,5)"_s, u"#NUM!"_s},
    });
}

TEST(Formula, logicTakesOnlyTheBranchItNeeds)
{
    expectAll({
        {u"=IF(B1>5,\"big\",1/0)"_s, u"big"_s},
        {u"=IF(FALSE,1)"_s, u"FALSE"_s},
        {u"=IF(TRUE,,1)"_s, u"0"_s},
        {u"=SUM(IF(TRUE,B1:B2,0))"_s, u"30"_s},
        {u"=IF(\"maybe\",1,2)"_s, u"#VALUE!"_s},
        {u"=AND(TRUE,1,C2)"_s, u"TRUE"_s},
        {u"=AND(A1:A4)"_s, u"#VALUE!"_s},
        {u"=OR(FALSE,0)&XOR(TRUE,TRUE,TRUE)&NOT(0)"_s, u"FALSETRUETRUE"_s},
        {u"=ISBLANK(D1)&ISBLANK(E1)&ISNUMBER(B1)&ISTEXT(A1)"_s, u"TRUEFALSETRUETRUE"_s},
    });
}

TEST(Formula, textFunctionsCountCharacters)
{
    expectAll({
        {u"=CONCAT(A1:B1,\"!\")&CONCATENATE(1,2)"_s, u"Ann10!12"_s},
        {u"=TEXTJOIN(\", \",TRUE,A1:A2,E1,\"x\")"_s, u"Ann, Bert, x"_s},
        {u"=LEN(E3)&LEFT(E3,3)&RIGHT(E3,3)&MID(E3,3,1)"_s,
         u"5"_s + u"00\U0001F40D"_s + u"\U0001F40Dab"_s + u"\U0001F40D"_s},
        {u"=LEFT(\"abc\")&RIGHT(\"abc\",9)&MID(\"abc\",9,1)"_s, u"aabc"_s},
        {u"=LEFT(\"abc\",-1)"_s, u"#VALUE!"_s},
        {u"=MID(\"abc\",0,1)"_s, u"#VALUE!"_s},
        {u"=UPPER(\"aé\")&LOWER(\"AÉ\")&PROPER(\"the OLD mill\")"_s, u"AÉaéThe Old Mill"_s},
        {u"=TRIM(\"  a   b \")"_s, u"a b"_s},
        {u"=EXACT(\"a\",\"A\")"_s, u"FALSE"_s},
        {u"=FIND(\"b\",\"aBb\")&SEARCH(\"b\",\"aBb\")&FIND(\"a\",\"aba\",2)"_s, u"323"_s},
        {u"=SEARCH(\"a?c*e\",\"xxabcde\")"_s, u"3"_s},
        {u"=SEARCH(\"~*\",\"a*b\")"_s, u"2"_s},
        {u"=FIND(\"z\",\"abc\")"_s, u"#VALUE!"_s},
        {u"=FIND(\"a\",\"abc\",5)"_s, u"#VALUE!"_s},
        {u"=SUBSTITUTE(\"a-b-c\",\"-\",\"+\")&SUBSTITUTE(\"a-b-c\",\"-\",\"+\",2)"_s, u"a+b+ca-b+c"_s},
        {u"=REPT(\"ab\",3)"_s, u"ababab"_s},
        {u"=REPT(\"ab\",1E9)"_s, u"#VALUE!"_s},
        {u"=VALUE(\" 12.5 \")+VALUE(\"50%\")"_s, u"13"_s},
        {u"=VALUE(\"inf\")"_s, u"#VALUE!"_s},
        {u"=TEXT(1234.567,\"#,##0.00\")&TEXT(0.256,\"0%\")&TEXT(5,\"000\")"_s, u"1,234.5726%005"_s},
        {u"=TEXT(-1234.5,\"0.0##\")&TEXT(-0.001,\"0.0\")&TEXT(12,\"0 gold\")"_s, u"-1234.50.012 gold"_s},
        {u"=TEXT(\"abc\",\"0\")"_s, u"abc"_s},
        {u"=TEXT(1,\"gold\")"_s, u"#VALUE!"_s},
    });
}

TEST(Formula, lookups)
{
    expectAll({
        {u"=VLOOKUP(\"bert\",A1:C4,2,FALSE)"_s, u"20"_s},
        {u"=VLOOKUP(\"C*\",A1:C4,2,FALSE)"_s, u"30"_s},
        {u"=VLOOKUP(\"Zoe\",A1:C4,2,FALSE)"_s, u"#N/A"_s},
        {u"=VLOOKUP(\"Ann\",A1:C4,4,FALSE)"_s, u"#REF!"_s},
        {u"=VLOOKUP(\"Ann\",A1:C4,0,FALSE)"_s, u"#VALUE!"_s},
        {u"=VLOOKUP(25,B1:C4,1)"_s, u"20"_s},
        {u"=VLOOKUP(5,B1:C4,1)"_s, u"#N/A"_s},
        {u"=HLOOKUP(10,A1:C4,3,FALSE)"_s, u"30"_s},
        {u"=MATCH(30,B1:B4,0)&MATCH(39,B1:B4)"_s, u"33"_s},
        {u"=MATCH(1,A1:B2,0)"_s, u"#N/A"_s},
        {u"=INDEX(A1:C4,2,1)&INDEX(A1:A4,3)&INDEX(A1:C1,2)"_s, u"BertCleo10"_s},
        {u"=SUM(INDEX(A1:C4,0,2))"_s, u"100"_s},
        {u"=INDEX(A1:C4,5,1)"_s, u"#REF!"_s},
        {u"=CHOOSE(2,\"a\",\"b\")"_s, u"b"_s},
        {u"=CHOOSE(3,\"a\",\"b\")"_s, u"#VALUE!"_s},
        {u"=ROWS(A1:C4)&COLUMNS(A1:C4)"_s, u"43"_s},
        {u"=ROWS(A1:A1000)"_s, u"20"_s},
        {u"=ROWS(1)"_s, u"#VALUE!"_s},
    });
}

TEST(Formula, functionsAreFoundByTheirNames)
{
    for (const Function& function : allFunctions())
        EXPECT_EQ(findFunction(function.name.toString()), &function) << function.name.data();
    EXPECT_EQ(findFunction(u"FLY"_s), nullptr);
}

TEST(CellAddress, readsAndWrites)
{
    for (const qint32 column : {0, 25, 26, 51, 52, 701, 702, mostColumns - 1}) {
        const QString address = addressText({7, column});
        ASSERT_TRUE(referenceFromText(address)) << address.toStdString();
        EXPECT_EQ(referenceFromText(address)->position, (CellPosition{7, column}));
    }
    EXPECT_EQ(addressText({0, 702}), u"AAA1");
    for (const QString& text : {u"$A$1"_s, u"A$1"_s, u"$XFD1048576"_s})
        EXPECT_EQ(referenceText(*referenceFromText(text)), text);
    for (const QString& text :
         {QString(), u"A"_s, u"1"_s, u"A0"_s, u"A01"_s, u"XFE1"_s, u"A1048577"_s, u"AAAA1"_s, u"A99999999"_s,
          u"$$A1"_s, u"A1$"_s, u"A-1"_s, u"Ä1"_s, u"A１"_s})
        EXPECT_FALSE(referenceFromText(text)) << text.toStdString();
}

} // namespace tw::app::spreadsheet
