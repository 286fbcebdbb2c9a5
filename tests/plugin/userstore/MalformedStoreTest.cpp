// SPDX-License-Identifier: GPL-2.0-or-later
// Several hundred damaged stores: none crashes the program, none costs a good preset, and each is
// reported with file, line and column.
#include "StoreFixture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

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
    bool isWholeText; ///< the text is JSON: the other presets must stay
};

std::vector<Case> WrongValues()
{
    const QList<QByteArray> values{"null",  "true", "-7", "1.5",         "3e9",
                                   "\"x\"", "[3]",  "{}", "[[\"deep\"]]"};
    std::vector<Case> cases;
    for (const QString& mark : MarkNames())
        for (const QByteArray& value : values)
            cases.push_back({(mark + QStringLiteral("=")).toStdString() + value.toStdString(),
                             WithValue(mark, value), true});
    return cases;
}

std::vector<Case> BrokenTexts()
{
    const QByteArray good = WithoutMarks(Template);
    std::vector<Case> cases{
        {"empty", "", false},
        {"blanks", " \n\t ", false},
        {"no JSON", "<presets/>", false},
        {"array at the top", "[1, 2]", false},
        {"text at the top", "\"presets\"", false},
        {"NUL bytes", QByteArray(100, '\0'), false},
        {"duplicate key", WithValue(QStringLiteral("popular"), "true, \"popular\": false"), false},
        {"invalid UTF-8", WithValue(QStringLiteral("name"), "\"\xff\xfe\""), false},
        {"overlong UTF-8", WithValue(QStringLiteral("name"), "\"\xc0\xaf\""), false},
        {"lone high surrogate", WithValue(QStringLiteral("name"), "\"\\ud800\""), false},
        {"lone low surrogate", WithValue(QStringLiteral("name"), "\"\\udc00\""), false},
        {"control character", WithValue(QStringLiteral("name"), "\"a\x01\""), false},
        {"1e400", WithValue(QStringLiteral("gain"), "1e400"), false},
        {"NaN", WithValue(QStringLiteral("gain"), "NaN"), false},
        {"-Infinity", WithValue(QStringLiteral("gain"), "-Infinity"), false},
        {"hexadecimal", WithValue(QStringLiteral("gain"), "0x10"), false},
        {"leading zero", WithValue(QStringLiteral("gain"), "007"), false},
        {"trailing comma", WithValue(QStringLiteral("marks"), "[1,]"), false},
        {"comment", WithValue(QStringLiteral("gain"), "0.5 /* half */"), false},
        {"single quotes", WithValue(QStringLiteral("name"), "'x'"), false},
        {"nesting",
         WithValue(QStringLiteral("image"), QByteArray(100'000, '[') + QByteArray(100'000, ']')),
         false},
        {"open nesting", QByteArray(1'000'000, '['), false},
        {"two documents", good + good, false},
        {"another format", WithValue(QStringLiteral("format"), "\"lumetra-catalogue\""), false},
    };
    for (int i = 1; i <= 40; ++i)
        cases.push_back({"truncated " + std::to_string(i), good.left(good.size() * i / 41), false});
    return cases;
}

/// A flipped bit may leave a text that is still JSON, or not.
std::vector<Case> FlippedBits()
{
    const QByteArray good = WithoutMarks(Template);
    std::vector<Case> cases;
    for (int i = 0; i < 50; ++i) {
        QByteArray text = good;
        const int at = static_cast<int>((i * 7919LL + 13) % good.size());
        text[at] = static_cast<char>(text[at] ^ (1 << (i % 8)));
        cases.push_back({"flipped bit " + std::to_string(i), text, false});
    }
    return cases;
}

class MalformedStoreTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("presets.json")); }

    void Reset(const QByteArray& content)
    {
        QDir folder(m_folder.path());
        for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
            folder.remove(name);
        WriteFile(Path(), content);
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

TEST_F(MalformedStoreTest, keepsTheOtherPresetsWhateverValueIsWrong)
{
    const auto cases = WrongValues();
    ASSERT_GT(cases.size(), 200u);
    for (const Case& given : cases) {
        SCOPED_TRACE(given.name);
        Reset(given.content);
        StoreProgram program(Path());
        const QStringList names = program.Names();
        const bool isListGone = given.name.rfind("holder", 0) == 0 ||
                                given.name.rfind("items", 0) == 0 ||
                                given.name.rfind("format", 0) == 0;
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
        if (program.Store().IsReadOnly())
            continue;

        // Whatever it was, a save keeps it, here or in the file set aside.
        program.SaveAs(QStringLiteral("New"));
        StoreProgram again(Path());
        EXPECT_TRUE(again.Names().contains(QStringLiteral("New")));
        for (const QString& name : names)
            EXPECT_TRUE(again.Names().contains(name)) << name.toStdString();
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const bool isAside = !ContentsAside().isEmpty();
        EXPECT_TRUE(isAside ? ContentsAside().contains(given.content)
                            : isListGone || file.readAll().contains("\"First\""));
    }
}

TEST_F(MalformedStoreTest, setsABrokenTextAsideAndStartsFromTheBackup)
{
    auto cases = BrokenTexts();
    const auto flipped = FlippedBits();
    cases.insert(cases.end(), flipped.begin(), flipped.end());
    ASSERT_GT(cases.size(), 100u);
    const QByteArray good = WithoutMarks(Template);
    for (const Case& given : cases) {
        SCOPED_TRACE(given.name);
        Reset(given.content);
        WriteFile(Path() + QStringLiteral(".backup-1"), good);
        StoreProgram program(Path());
        if (program.Store().GetReports().empty() || ContentsAside().isEmpty()) {
            // A flipped bit that left the text readable.
            EXPECT_EQ(given.name.rfind("flipped", 0), 0u);
            continue;
        }
        EXPECT_TRUE(NamesAPlace(program.Store().GetReports())) << program.Store().GetReports()[0];
        EXPECT_TRUE(ContentsAside().contains(given.content));
        EXPECT_EQ(program.Names().size(), 3);
        EXPECT_TRUE(StoreProgram(Path()).Store().GetReports().empty()) << "repaired once";
    }
}

} // namespace
} // namespace LumetraTest
