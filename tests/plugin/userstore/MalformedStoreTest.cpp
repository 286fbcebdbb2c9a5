// SPDX-License-Identifier: GPL-2.0-or-later
// Several hundred damaged stores: none crashes the program, none costs a good preset, and each is
// reported with file, line and column, a wrong value with its path too.
#include "StoreFixture.h"
#include "core/userstore/UserStoreChecker.h"
#include "storage/JsonDocument.h"
#include "storage/JsonException.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace LumetraTest {
namespace {

/// A complete preset; "@NAME@" marks stand before each value that a case replaces.
constexpr char Template[] = R"({"format": @format@"lumetra-user-presets", "version": @version@1,
"UserPresets": @holder@{"items": @items@[
 {"name": "First", "id": "first"},
 @item@{"name": @name@"Victim", "id": @id@"victim", "popular": @popular@true,
  "controller": @controller@"photo", "image": @image@"a.png",
  "previewCropPolicy": @crop@1, "previewFitPolicy": @fit@0,
  "settings": @settings@{"effects": @effects@[@effectItem@{"effect": @effect@{"id": @effectId@"tone", "gain": @gain@0.5}}]},
  "settingsPreview": @preview@{"effects": @previewEffects@[]},
  "intensity": @intensity@{"type": @type@2, "sliderSetting": @slider@{"title": @title@"Gain",
    "begin": @begin@0, "end": @end@100, "variables": @variables@[@variable@{"effectID": @effectID@"tone",
    "setting": @setting@"gain", "begin": @from@0, "end": @to@2}]}}},
 {"name": "Last", "id": "last"}]},
"Favourites": @marks@[@mark@{"group": @group@"User presets", "id": @markId@"last"}]})";

QByteArray WithoutMarks(QByteArray text)
{
    return QString::fromUtf8(text).remove(QRegularExpression(QStringLiteral("@\\w+@"))).toUtf8();
}

QStringList MarkNames()
{
    QStringList names;
    auto matches =
        QRegularExpression(QStringLiteral("@(\\w+)@")).globalMatch(QString::fromLatin1(Template));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

/// The end of the JSON value that begins at `begin`.
int ValueEnd(const QByteArray& text, int begin)
{
    int depth = 0;
    bool isText = false;
    for (int i = begin; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"')
            isText = !isText;
        if (isText)
            continue;
        if (depth == 0 && i > begin && (c == ',' || c == '}' || c == ']'))
            return i;
        depth += (c == '{' || c == '[') - (c == '}' || c == ']');
        if (depth == 0 && (c == '}' || c == ']'))
            return i + 1;
    }
    return text.size();
}

/// The complete store with the value behind `mark` replaced.
QByteArray WithValue(const QString& mark, const QByteArray& value)
{
    QByteArray text = Template;
    const QByteArray token = "@" + mark.toLatin1() + "@";
    const int begin = text.indexOf(token);
    QByteArray rest = text.mid(begin + token.size());
    // Marks inside the replaced value go with it.
    rest.remove(0, ValueEnd(rest, 0));
    return WithoutMarks(text.left(begin)) + value + WithoutMarks(rest);
}

struct Case
{
    std::string name;
    QByteArray content;
    std::string path; ///< of the wrong value; empty when the value fits or the text is no JSON
};

/// The place of a marked value, and the values of WrongValues() that fit there.
struct Place
{
    std::string path;
    QList<QByteArray> fitting;
};

const std::map<QString, Place>& Places()
{
    static const QList<QByteArray> text{"\"x\""};
    static const QList<QByteArray> flag{"true"};
    static const QList<QByteArray> whole{"-7"};
    static const QList<QByteArray> number{"-7", "1.5", "3e9"};
    static const QList<QByteArray> node{"{}"};
    static const std::string item = "UserPresets/items[1]";
    static const std::string effect = item + "/settings/effects[0]/effect";
    static const std::string slider = item + "/intensity/sliderSetting";
    static const std::map<QString, Place> places{
        {QStringLiteral("format"), {"format", {}}},
        {QStringLiteral("version"), {"version", number}},
        {QStringLiteral("holder"), {"UserPresets", node}},
        {QStringLiteral("items"), {"UserPresets/items", {}}},
        {QStringLiteral("item"), {item, node}},
        {QStringLiteral("name"), {item + "/name", text}},
        {QStringLiteral("id"), {item + "/id", text}},
        {QStringLiteral("popular"), {item + "/popular", flag}},
        {QStringLiteral("controller"), {item + "/controller", {}}},
        {QStringLiteral("image"), {item + "/image", text}},
        {QStringLiteral("crop"), {item + "/previewCropPolicy", whole}},
        {QStringLiteral("fit"), {item + "/previewFitPolicy", whole}},
        {QStringLiteral("settings"), {item + "/settings", node}},
        {QStringLiteral("effects"), {item + "/settings/effects", node}},
        {QStringLiteral("effectItem"), {item + "/settings/effects[0]", {}}},
        {QStringLiteral("effect"), {effect, {}}},
        {QStringLiteral("effectId"), {effect + "/id", {}}},
        {QStringLiteral("gain"), {effect + "/gain", number}},
        {QStringLiteral("preview"), {item + "/settingsPreview", node}},
        {QStringLiteral("previewEffects"), {item + "/settingsPreview/effects", node}},
        {QStringLiteral("intensity"), {item + "/intensity", {}}},
        {QStringLiteral("type"), {item + "/intensity/type", {}}},
        {QStringLiteral("slider"), {slider, node}},
        {QStringLiteral("title"), {slider + "/title", text}},
        {QStringLiteral("begin"), {slider + "/begin", number}},
        {QStringLiteral("end"), {slider + "/end", number}},
        {QStringLiteral("variables"), {slider + "/variables", node}},
        {QStringLiteral("variable"), {slider + "/variables[0]", {}}},
        {QStringLiteral("effectID"), {slider + "/variables[0]/effectID", text}},
        {QStringLiteral("setting"), {slider + "/variables[0]/setting", {}}},
        {QStringLiteral("from"), {slider + "/variables[0]/begin", number}},
        {QStringLiteral("to"), {slider + "/variables[0]/end", number}},
        {QStringLiteral("marks"), {"Favourites", {}}},
        {QStringLiteral("mark"), {"Favourites[0]", node}},
        {QStringLiteral("group"), {"Favourites[0]/group", text}},
        {QStringLiteral("markId"), {"Favourites[0]/id", text}},
    };
    return places;
}

std::vector<Case> WrongValues()
{
    const QList<QByteArray> values{"null",  "true", "-7", "1.5",         "3e9",
                                   "\"x\"", "[3]",  "{}", "[[\"deep\"]]"};
    std::vector<Case> cases;
    for (const QString& mark : MarkNames()) {
        const Place& place = Places().at(mark);
        for (const QByteArray& value : values)
            cases.push_back({(mark + QStringLiteral("=")).toStdString() + value.toStdString(),
                             WithValue(mark, value),
                             place.fitting.contains(value) ? std::string() : place.path});
    }
    return cases;
}

std::vector<Case> BrokenTexts()
{
    const QByteArray good = WithoutMarks(Template);
    std::vector<Case> cases{
        {"empty", "", {}},
        {"blanks", " \n\t ", {}},
        {"no JSON", "<presets/>", {}},
        {"array at the top", "[1, 2]", {}},
        {"text at the top", "\"presets\"", {}},
        {"NUL bytes", QByteArray(100, '\0'), {}},
        {"duplicate key", WithValue(QStringLiteral("popular"), "true, \"popular\": false"), {}},
        {"invalid UTF-8", WithValue(QStringLiteral("name"), "\"\xff\xfe\""), {}},
        {"overlong UTF-8", WithValue(QStringLiteral("name"), "\"\xc0\xaf\""), {}},
        {"lone high surrogate", WithValue(QStringLiteral("name"), "\"\\ud800\""), {}},
        {"lone low surrogate", WithValue(QStringLiteral("name"), "\"\\udc00\""), {}},
        {"control character", WithValue(QStringLiteral("name"), "\"a\x01\""), {}},
        {"1e400", WithValue(QStringLiteral("gain"), "1e400"), {}},
        {"NaN", WithValue(QStringLiteral("gain"), "NaN"), {}},
        {"-Infinity", WithValue(QStringLiteral("gain"), "-Infinity"), {}},
        {"hexadecimal", WithValue(QStringLiteral("gain"), "0x10"), {}},
        {"leading zero", WithValue(QStringLiteral("gain"), "007"), {}},
        {"trailing comma", WithValue(QStringLiteral("marks"), "[1,]"), {}},
        {"comment", WithValue(QStringLiteral("gain"), "0.5 /* half */"), {}},
        {"single quotes", WithValue(QStringLiteral("name"), "'x'"), {}},
        {"nesting",
         WithValue(QStringLiteral("image"), QByteArray(100'000, '[') + QByteArray(100'000, ']')),
         {}},
        {"open nesting", QByteArray(1'000'000, '['), {}},
        {"two documents", good + good, {}},
        {"another format", WithValue(QStringLiteral("format"), "\"lumetra-catalogue\""), {}},
        {"key twice at the top", WithValue(QStringLiteral("version"), "1, \"format\": \"x\""), {}},
        {"key twice, once escaped",
         WithValue(QStringLiteral("popular"), "true, \"\\u0070opular\": false"),
         {}},
        {"key twice in an effect", WithValue(QStringLiteral("gain"), "0.5, \"id\": \"tone\""), {}},
        {"key twice in a mark", WithValue(QStringLiteral("markId"), "\"a\", \"id\": \"b\""), {}},
        {"key twice in a slider", WithValue(QStringLiteral("end"), "100, \"begin\": 1"), {}},
        {"invalid UTF-8 in a key", WithValue(QStringLiteral("fit"), "0, \"a\xff\": 1"), {}},
        {"surrogate in UTF-8", WithValue(QStringLiteral("name"), "\"\xed\xa0\x80\""), {}},
        {"cut UTF-8", WithValue(QStringLiteral("name"), "\"\xe2\x82\""), {}},
        {"lone surrogate in a key", WithValue(QStringLiteral("fit"), "0, \"\\udfff\": 1"), {}},
        {"surrogates in the wrong order",
         WithValue(QStringLiteral("id"), "\"\\udc00\\ud800\""),
         {}},
        {"unknown escape", WithValue(QStringLiteral("name"), "\"\\x41\""), {}},
        {"short escape", WithValue(QStringLiteral("name"), "\"\\u12\""), {}},
        {"line break in a text", WithValue(QStringLiteral("name"), "\"a\nb\""), {}},
        {"Infinity", WithValue(QStringLiteral("to"), "Infinity"), {}},
        {"-1e400", WithValue(QStringLiteral("from"), "-1e400"), {}},
        {"very long number", WithValue(QStringLiteral("begin"), QByteArray(100'000, '9')), {}},
        {"plus sign", WithValue(QStringLiteral("gain"), "+1"), {}},
        {"no digit before the point", WithValue(QStringLiteral("gain"), ".5"), {}},
        {"no digit after the point", WithValue(QStringLiteral("gain"), "1."), {}},
        {"no digit in the exponent", WithValue(QStringLiteral("gain"), "1e"), {}},
        {"True", WithValue(QStringLiteral("popular"), "True"), {}},
        {"undefined", WithValue(QStringLiteral("popular"), "undefined"), {}},
        {"key without quotes", WithValue(QStringLiteral("fit"), "0, fit: 1"), {}},
        {"no colon", WithValue(QStringLiteral("fit"), "0, \"fit\" 1"), {}},
        {"no comma", WithValue(QStringLiteral("fit"), "0 \"fit\": 1"), {}},
        {"a brace too many", good + "}", {}},
        {"a text behind the end", good + "\"end\"", {}},
        {"UTF-16", QByteArray("\xff\xfe{\0}\0", 6), {}},
        {"a NUL byte inside", WithValue(QStringLiteral("name"), QByteArray("\"a\0b\"", 5)), {}},
        {"a byte order mark in the middle", good.left(1) + "\xef\xbb\xbf" + good.mid(1), {}},
        {"nested objects",
         WithValue(QStringLiteral("image"),
                   QByteArray("{\"a\":").repeated(70) + "1" + QByteArray(70, '}')),
         {}},
    };
    return cases;
}

std::vector<Case> Truncations()
{
    const QByteArray good = WithoutMarks(Template);
    std::vector<Case> cases;
    for (int i = 1; i <= 40; ++i)
        cases.push_back({"truncated " + std::to_string(i), good.left(good.size() * i / 41), {}});
    return cases;
}

/// Flips bits; the text may still be JSON afterwards.
std::vector<Case> FlippedBits()
{
    const QByteArray good = WithoutMarks(Template);
    std::vector<Case> cases;
    for (int i = 0; i < 50; ++i) {
        QByteArray text = good;
        const int at = static_cast<int>((i * 7919LL + 13) % good.size());
        text[at] = static_cast<char>(text[at] ^ (1 << (i % 8)));
        cases.push_back({"flipped bit " + std::to_string(i), text, {}});
    }
    return cases;
}

class MalformedStoreTest : public testing::Test
{
protected:
    MalformedStoreTest() { RegisterTone(); }

    QString Path() const { return m_folder.filePath(QStringLiteral("presets.json")); }

    void Reset(const QByteArray& content)
    {
        QDir folder(m_folder.path());
        for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
            folder.remove(name);
        WriteFile(Path(), content);
    }

    QByteArray Content() const
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static void WriteFile(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QList<QByteArray> ContentsAside() const
    {
        QList<QByteArray> contents;
        const QDir folder(m_folder.path());
        for (const QString& name : folder.entryList({QStringLiteral("*.unreadable-*")})) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                contents.append(file.readAll());
        }
        return contents;
    }

    static bool NamesAPlace(const std::vector<std::string>& reports)
    {
        static const QRegularExpression place(QStringLiteral("presets\\.json:\\d+:\\d+: "));
        return std::any_of(reports.begin(), reports.end(), [](const std::string& report) {
            return place.match(QString::fromStdString(report)).hasMatch();
        });
    }

    QTemporaryDir m_folder;
};

TEST_F(MalformedStoreTest, loadsTheTemplateItselfWithoutAReport)
{
    Reset(WithoutMarks(Template));
    StoreProgram program(Path());
    EXPECT_EQ(program.Names().size(), 3);
    EXPECT_TRUE(program.Store().GetReports().empty()) << program.Store().GetReports()[0];
}

/// The remarks of `lumetra-presets check` about the text; the reader's refusal when it is no JSON.
std::vector<std::string> CheckText(const QByteArray& content)
{
    using namespace LumetraHost;
    CatalogueReports reports;
    try {
        LumetraPlugin::UserStoreChecker::Check(JsonDocument::Parse(content, "presets.json"),
                                               {"", "photo"}, reports);
    } catch (const JsonException& error) {
        return {error.what()};
    }
    std::vector<std::string> errors;
    for (const CatalogueReport& report : reports.GetAll())
        if (report.severity == CatalogueReport::Severity::Error)
            errors.push_back(report.ToText());
    return errors;
}

TEST_F(MalformedStoreTest, hasAtLeastThreeHundredOfThem)
{
    std::set<QByteArray> wrongValues;
    for (const Case& given : WrongValues())
        if (!given.path.empty())
            wrongValues.insert(given.content);
    std::set<QByteArray> texts;
    for (const Case& given : BrokenTexts())
        texts.insert(given.content);
    std::set<QByteArray> mutations; // those that broke something
    for (const auto& cases : {Truncations(), FlippedBits()})
        for (const Case& given : cases)
            if (!CheckText(given.content).empty())
                mutations.insert(given.content);

    EXPECT_EQ(wrongValues.size(), 287u);
    EXPECT_EQ(texts.size(), 55u);
    EXPECT_LE(mutations.size(), 100u);
    EXPECT_GE(wrongValues.size() + texts.size() + mutations.size(), 300u);
}

TEST_F(MalformedStoreTest, namesThePlaceAndThePathOfEveryWrongValue)
{
    EXPECT_TRUE(CheckText(WithoutMarks(Template)).empty());
    for (const Case& given : WrongValues()) {
        if (given.path.empty())
            continue;
        const auto errors = CheckText(given.content);
        const QRegularExpression expected(
            QStringLiteral("^presets\\.json:\\d+:\\d+: error: %1")
                .arg(QRegularExpression::escape(QString::fromStdString(given.path))));
        EXPECT_TRUE(std::any_of(errors.begin(), errors.end(),
                                [&expected](const std::string& error) {
                                    return expected.match(QString::fromStdString(error)).hasMatch();
                                }))
            << given.name << ": " << (errors.empty() ? "no error" : errors.front());
    }
}

TEST_F(MalformedStoreTest, namesThePlaceOfEveryBrokenText)
{
    const QRegularExpression expected(QStringLiteral("^presets\\.json:\\d+:\\d+: "));
    for (const auto& cases : {BrokenTexts(), Truncations()})
        for (const Case& given : cases) {
            const auto errors = CheckText(given.content);
            ASSERT_FALSE(errors.empty()) << given.name;
            EXPECT_TRUE(expected.match(QString::fromStdString(errors.front())).hasMatch())
                << given.name << ": " << errors.front();
        }
}

/// A store above the size limit is reported and left alone.
TEST_F(MalformedStoreTest, leavesAHugeFileAlone)
{
    Reset("{}");
    QFile file(Path());
    ASSERT_TRUE(file.resize(LumetraHost::JsonDocument::MaxFileSize + 1));
    try {
        StoreProgram program(Path());
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        EXPECT_NE(std::string(error.what()).find("presets.json: expected at most 64 MB"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_EQ(file.size(), LumetraHost::JsonDocument::MaxFileSize + 1);
    EXPECT_TRUE(ContentsAside().isEmpty());
}

TEST_F(MalformedStoreTest, keepsTheOtherPresetsWhateverValueIsWrong)
{
    const auto cases = WrongValues();
    ASSERT_GT(cases.size(), 200u);
    for (const Case& given : cases) {
        SCOPED_TRACE(given.name);
        Reset(given.content);
        if (given.name.rfind("format", 0) == 0) {
            EXPECT_THROW(StoreProgram{Path()}, Zorvik::Exception);
            EXPECT_EQ(Content(), given.content);
            continue;
        }
        StoreProgram program(Path());
        const QStringList names = program.Names();
        const bool isListGone =
            given.name.rfind("holder", 0) == 0 || given.name.rfind("items", 0) == 0;
        if (!isListGone) {
            EXPECT_TRUE(names.contains(QStringLiteral("First")));
            EXPECT_TRUE(names.contains(QStringLiteral("Last")));
        }
        const bool isVictimGone = !isListGone && !names.contains(QStringLiteral("Victim")) &&
                                  given.name.rfind("name=", 0) != 0 && given.name != "item={}";
        // An empty list and an empty preset are nothing to complain of.
        if (given.name != "holder={}" && (isVictimGone || names.size() < 2)) {
            EXPECT_TRUE(NamesAPlace(program.Store().GetReports()));
        }
        if (given.name == "version=3e9") { // of a newer program
            EXPECT_THROW(program.SaveAs(QStringLiteral("New")), Zorvik::Exception);
            continue;
        }

        // A save must keep the text, whatever it was.
        program.SaveAs(QStringLiteral("New"));
        StoreProgram again(Path());
        EXPECT_TRUE(again.Names().contains(QStringLiteral("New")));
        for (const QString& name : names)
            EXPECT_TRUE(again.Names().contains(name)) << name.toStdString();
        EXPECT_TRUE(isListGone || Content().contains("\"First\""));
    }
}

TEST_F(MalformedStoreTest, setsABrokenTextAsideAndStartsFromTheBackup)
{
    auto cases = BrokenTexts();
    for (const auto& more : {Truncations(), FlippedBits()})
        cases.insert(cases.end(), more.begin(), more.end());
    ASSERT_GT(cases.size(), 100u);
    const QByteArray good = WithoutMarks(Template);
    for (const Case& given : cases) {
        SCOPED_TRACE(given.name);
        Reset(given.content);
        WriteFile(Path() + QStringLiteral(".backup-1"), good);
        StoreProgram program(Path());
        const auto& reports = program.Store().GetReports();
        const bool isFromBackup = std::any_of(reports.begin(), reports.end(), [](const auto& text) {
            return text.find("presets are taken from") != std::string::npos;
        });
        if (!isFromBackup) {
            // A flipped bit that left the text readable.
            EXPECT_EQ(given.name.rfind("flipped", 0), 0u);
            continue;
        }
        const bool isEmpty = given.content.isEmpty();
        EXPECT_TRUE(isEmpty || NamesAPlace(reports)) << reports[0];
        EXPECT_EQ(program.Names().size(), 3);
        EXPECT_EQ(Content(), given.content) << "reading writes nothing";

        program.SaveAs(QStringLiteral("New"));
        EXPECT_TRUE(isEmpty || ContentsAside().contains(given.content));
        StoreProgram again(Path());
        EXPECT_EQ(again.Names().size(), 4);
        EXPECT_TRUE(again.Store().GetReports().empty()) << "repaired once";
    }
}

} // namespace
} // namespace LumetraTest
