// SPDX-License-Identifier: GPL-2.0-or-later
// Misbehaviour of modules, and the editor's reaction.
#include "Places.h"
#include "editor/EditorFixture.h"

#include "drawer/previews/AsyncPreviews.h"
#include "window/MessageBar.h"

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>
#include <utility>

using namespace LumetraTest;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char Sidecar[] = R"({"format": "lumetra-sidecar", "version": 1, "panels": {
    "exposure-panel": {"tenthsOfStops": 5},
    "from-elsewhere": {"z": 1.50, "a": [9007199254740993, {"deep": null}]},
    "misbehaving-module": {"strength": 7}}})";
constexpr char Elsewhere[] = R"("from-elsewhere":{"z":1.50,"a":[9007199254740993,{"deep":null}]})";
constexpr char Strength[] = R"("misbehaving-module":{"strength":7})";

/// The example panel behaves, the module beside it does not.
class ModulesTest : public EditorTest
{
protected:
    ModulesTest()
    {
        Misbehave("");
        qApp->setProperty("moduleCalls", 0);
        WritePhoto("lake.png", 80, 60);
        WriteFile("lake.png.lumetra.json", Sidecar);
    }
    ~ModulesTest() override { Misbehave(""); }

    static void Misbehave(const char* mode)
    {
        qApp->setProperty("misbehaviour", QString::fromLatin1(mode));
    }
    static int CountCalls() { return qApp->property("moduleCalls").toInt(); }
    static QString Folder(const char* module)
    {
        return QStringLiteral(LUMETRA_TEST_MODULES "/") + QLatin1String(module);
    }

    void Load()
    {
        window->LoadPanels({Folder("misbehaving-module"), QStringLiteral(LUMETRA_EXAMPLE_MODULES)});
    }
    void OpenLake() { Open(Path("lake.png")); }
    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }
    int CountTabs() const { return Find<QTabWidget>("panels")->count(); }
    QPushButton* Button() const
    {
        return window->findChild<QPushButton*>(QStringLiteral("misbehave"));
    }

    /// The edit without white space that only makes it readable.
    std::string KeptEdit()
    {
        editor->SaveEdit();
        std::string text = ReadFile("lake.png.lumetra.json").toStdString();
        text.erase(
            std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\n'; }),
            text.end());
        return text;
    }

    void ExpectOutOfUse(const char* name = "Trouble")
    {
        EXPECT_THAT(GetMessage().toStdString(), HasSubstr(name));
        EXPECT_EQ(CountTabs(), 1);
        QApplication::processEvents(); // it ends when none of it runs
        EXPECT_EQ(Button(), nullptr);
        const int calls = CountCalls();
        Slider()->setValue(-9);
        FindAction("undo")->trigger();
        FindAction("redo")->trigger();
        EXPECT_EQ(Slider()->value(), -9);
        EXPECT_EQ(CountCalls(), calls) << "it is still called";
    }
};

class FailingModuleTest : public ModulesTest, public testing::WithParamInterface<const char*>
{
protected:
    /// Makes the editor call an operation of the module.
    void Use(const QString& operation)
    {
        const QString name = operation.section(QLatin1Char(' '), 0, 0);
        const std::map<QString, std::function<void()>> ways{
            {QStringLiteral("GetTitle"), [this] { ChangeLanguage(); }},
            {QStringLiteral("PhotoChanged"), [this] { OpenLake(); }},
            {QStringLiteral("PreviewReady"),
             [this] {
                 emit editor->findChild<LumetraHost::AsyncPreviews*>()->previewReady(
                     QStringLiteral("key"));
             }},
            {QStringLiteral("SaveEdit"), [this] { Slider()->setValue(10); }},
            {QStringLiteral("RestoreEdit"), [this] { OpenLake(); }},
            {QStringLiteral("MayEnd"), [this] { editor->MayEndPanels(); }},
            {QStringLiteral("event"), [this] { QTest::mouseClick(Button(), Qt::LeftButton); }},
            {QStringLiteral("paint"), [this] { Button()->repaint(); }},
            {QStringLiteral("redo"), [this] { Button()->click(); }},
            {QStringLiteral("undo"), [this] { FindAction("undo")->trigger(); }}};
        ways.at(name)();
    }

private:
    void ChangeLanguage()
    {
        QEvent change(QEvent::LanguageChange);
        QApplication::sendEvent(window.get(), &change);
    }
};

class OddEditTest : public ModulesTest,
                    public testing::WithParamInterface<std::pair<const char*, const char*>>
{
};

class FailingFromTheBeginningTest : public ModulesTest,
                                    public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(FailingModuleTest, isPutOutOfUseAndItsEditIsKept)
{
    const QString operation = QLatin1String(GetParam());
    Load();
    OpenLake();
    ASSERT_EQ(CountTabs(), 2);
    if (operation.startsWith(QLatin1String("undo")))
        Button()->click();
    Misbehave(GetParam());

    Use(operation);

    Misbehave("");
    ExpectOutOfUse();
    const std::string message = GetMessage().toStdString();
    EXPECT_THAT(message, HasSubstr(operation.endsWith(QLatin1String("42")) ? "no reason"
                                                                           : "the module fails"));
    EXPECT_THAT(message, Not(HasSubstr("call stack")));
    EXPECT_THAT(KeptEdit(), HasSubstr("\"tenthsOfStops\":-9"));
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
    EXPECT_THAT(KeptEdit(), HasSubstr(Elsewhere));
    while (FindAction("undo")->isEnabled()) {
        FindAction("undo")->trigger();
        EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
    }
    EXPECT_EQ(Slider()->value(), 5);
    while (FindAction("redo")->isEnabled())
        FindAction("redo")->trigger();
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
    EXPECT_THAT(KeptEdit(), HasSubstr(Elsewhere));
}

INSTANTIATE_TEST_SUITE_P(AtEveryOperation, FailingModuleTest,
                         testing::Values("GetTitle", "GetTitle 42", "PhotoChanged",
                                         "PhotoChanged 42", "PreviewReady", "PreviewReady 42",
                                         "SaveEdit", "SaveEdit 42", "RestoreEdit", "RestoreEdit 42",
                                         "MayEnd", "MayEnd 42", "event", "event 42", "paint",
                                         "paint 42", "redo", "redo 42", "undo", "undo 42"));

TEST_P(OddEditTest, costsOnlyThePanelThatGivesIt)
{
    const auto& [oddity, reason] = GetParam();
    Load();
    OpenLake();
    Misbehave(oddity);

    Slider()->setValue(10);

    ExpectOutOfUse();
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(reason));
    Misbehave("");
    EXPECT_THAT(KeptEdit(), HasSubstr("\"tenthsOfStops\":-9"));
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
    EXPECT_THAT(KeptEdit(), HasSubstr(Elsewhere));
}

INSTANTIATE_TEST_SUITE_P(
    OfEveryKind, OddEditTest,
    testing::Values(
        std::pair("null edit", "edit: expected a node, found a null pointer"),
        std::pair("null node", "edit/node: expected a node, found a null pointer"),
        std::pair("null element", "edit/list[0]: expected a node, found a null pointer"),
        std::pair("no number", "edit/number: expected a finite number, found nan"),
        std::pair("not finite", "edit/number: expected a finite number, found -inf"),
        std::pair("broken text", "edit/text: expected text in valid UTF-8, found \"caf?\""),
        std::pair("broken key", "edit: expected keys in valid UTF-8, found \"caf?\""),
        std::pair("empty key", "edit: expected a key for every value, found an empty one"),
        std::pair("key twice", "edit: expected each key once, found \"twice\" again"),
        std::pair("many keys", "edit: expected at most 10000 keys in a node, found 10002"),
        std::pair("deep", "/deep: expected nesting of at most 60 levels"),
        std::pair("ring", "/self: expected nesting of at most 60 levels"),
        std::pair("wide", "expected at most 1000000 values"),
        std::pair("large", "edit: expected at most 25165824 bytes, found 2621")));

TEST_P(FailingFromTheBeginningTest, isReportedAndTheOthersWork)
{
    Misbehave(GetParam());
    Load();
    EXPECT_EQ(CountTabs(), 1);
    Misbehave("");
    OpenLake();

    ExpectOutOfUse("misbehaving-module");
    EXPECT_TRUE(GetPart<LumetraEditor::MessageBar>().isVisible());
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
    EXPECT_THAT(KeptEdit(), HasSubstr(Elsewhere));
}

INSTANTIATE_TEST_SUITE_P(AtEveryOperation, FailingFromTheBeginningTest,
                         testing::Values("CreatePanel", "CreatePanel 42", "GetWidget",
                                         "GetWidget 42", "GetTitle", "GetTitle 42", "no panel",
                                         "no widget"));

TEST_F(ModulesTest, aPanelWithoutATitleGoesByItsFile)
{
    Misbehave("no title");

    Load();

    EXPECT_EQ(Find<QTabWidget>("panels")->tabText(0), QStringLiteral("misbehaving-module"));
}

TEST_F(ModulesTest, aPanelThatDeletesItsWidgetIsPutOutOfUse)
{
    Load();
    Misbehave("delete widget");

    OpenLake();

    ExpectOutOfUse();
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
}

TEST_F(ModulesTest, aPanelIsNotDeletedBelowItsOwnDialog)
{
    Load();
    OpenLake();
    Misbehave("dialog");

    QTest::mouseClick(Button(), Qt::LeftButton);

    EXPECT_TRUE(qApp->property("panelSurvivedItsDialog").toBool());
    ExpectOutOfUse();
}

TEST_F(ModulesTest, whatAFailedPanelWasOfferedGoesToTheNext)
{
    window->LoadPanels({Folder("misbehaving-module"), QStringLiteral(LUMETRA_MODULES)});
    const QString table = WriteFile("look.cube", "LUT_3D_SIZE 2\n"
                                                 "0 0 0\n1 0 0\n0 1 0\n1 1 0\n"
                                                 "0 0 1\n1 0 1\n0 1 1\n1 1 1\n");
    Misbehave("drag");

    DropFiles({table});

    EXPECT_EQ(CountTabs(), 2) << "the looks and the adjustments";
    EXPECT_TRUE(HasLook(QStringLiteral("look")));
}

TEST_F(ModulesTest, aPanelMayNoteAStepWhileItSaves)
{
    Load();
    OpenLake();
    Misbehave("save again");

    Slider()->setValue(10);

    EXPECT_EQ(editor->GetUndoStack().count(), 1);
    EXPECT_EQ(CountTabs(), 2);
}

TEST_F(ModulesTest, aPanelMayNoteAStepWhileItIsMade)
{
    OpenLake();
    Misbehave("early");

    Load();

    EXPECT_EQ(CountTabs(), 2);
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
}

TEST_F(ModulesTest, commandsOfAPanelInUseAreDoneAndMerged)
{
    Load();
    OpenLake();
    qApp->setProperty("commandIsDeleted", false);
    Button()->click();
    const int calls = CountCalls();
    Button()->click();
    EXPECT_GT(CountCalls(), calls);

    EXPECT_EQ(editor->GetUndoStack().count(), 1);
    FindAction("undo")->trigger();
    EXPECT_FALSE(FindAction("undo")->isEnabled());
    EXPECT_EQ(CountTabs(), 2);
}

TEST_F(ModulesTest, theStepsOfAFailedPanelCanStillBeUndone)
{
    Load();
    OpenLake();
    Misbehave("step");
    Button()->click();
    Misbehave("SaveEdit");
    Slider()->setValue(10);
    Misbehave("");
    EXPECT_THAT(KeptEdit(), HasSubstr("\"strength\":8"));

    FindAction("undo")->trigger();
    FindAction("undo")->trigger();
    EXPECT_THAT(KeptEdit(), HasSubstr("\"strength\":7"));
    FindAction("redo")->trigger();

    EXPECT_THAT(KeptEdit(), HasSubstr("\"strength\":8"));
}

TEST_F(ModulesTest, aPartWithMoreKeysThanAPanelCanTakeStaysInTheFile)
{
    std::string keys = R"("strength": 7)";
    for (int i = 0; i < 10'000; ++i)
        keys += ", \"key" + std::to_string(i) + "\": 1";
    WriteFile("lake.png.lumetra.json",
              QByteArray::fromStdString(R"({"format": "lumetra-sidecar", "version": 1, "panels": {
                  "exposure-panel": {"tenthsOfStops": 5}, "misbehaving-module": {)" +
                                        keys + "}}}"));
    Load();

    OpenLake();

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("at most 10000 keys in a node, found 10001"));
    EXPECT_EQ(Slider()->value(), 5);
    Slider()->setValue(10);
    EXPECT_THAT(KeptEdit(), HasSubstr("\"key9999\":1"));
}

TEST_F(ModulesTest, aPanelThatComesLaterFindsItsEdit)
{
    OpenLake();

    Load();

    EXPECT_EQ(Slider()->value(), 5);
    Slider()->setValue(10);
    EXPECT_THAT(KeptEdit(), HasSubstr(Strength));
}

TEST_F(ModulesTest, aRootObjectThatCannotBeMadeIsReported)
{
    window->LoadPanels({Folder("unmade-module"), QStringLiteral(LUMETRA_EXAMPLE_MODULES)});

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("libunmade-module.so"));
    EXPECT_EQ(CountTabs(), 1);
}

TEST_F(ModulesTest, reasonsStayWhenAPhotoComes)
{
    Misbehave("complain");
    window->LoadPanels(
        {Folder("outdated-module"), Folder("failing-module"), Folder("misbehaving-module")});
    Misbehave("");

    OpenLake();

    EXPECT_TRUE(GetPart<LumetraEditor::MessageBar>().isVisible());
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("liboutdated-module.so"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("failing-module"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("the module complains"));
}

TEST_F(ModulesTest, everyModuleThatFailsIsTold)
{
    for (int i = 0; i < 7; ++i)
        WriteFile(qPrintable(QStringLiteral("libbroken%1.so").arg(i)), "this is no module");
    window->LoadPanels({Path(".")});
    OpenLake();

    std::string told;
    while (GetPart<LumetraEditor::MessageBar>().isVisible()) {
        told += GetMessage().toStdString();
        Find<QToolButton>("messageClose")->click();
    }

    for (int i = 0; i < 7; ++i)
        EXPECT_THAT(told, HasSubstr("libbroken" + std::to_string(i)));
}

TEST_F(ModulesTest, anExceptionOfNobodysIsReportedToo)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [] { throw std::runtime_error("nobody's"); });
    timer.setSingleShot(true);
    timer.start(0);

    WaitUntil([this] { return !GetMessage().isEmpty(); });

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("nobody's"));
}
