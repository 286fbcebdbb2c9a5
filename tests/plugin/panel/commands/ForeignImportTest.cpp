// SPDX-License-Identifier: GPL-2.0-or-later
// Looks of other programs on their way through the panel.
#include "PanelFixture.h"
#include "panel/appearance/PanelTranslation.h"
#include "panel/importing/ImportReading.h"
#include "panel/importing/ImportSummary.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <atomic>

using LumetraPlugin::ImportedFile;
using LumetraPlugin::ImportedFiles;
using LumetraPlugin::ImportReading;
using LumetraPlugin::ImportSummary;
using LumetraPlugin::PanelTranslation;
using LumetraPlugin::PresetImport;
using LumetraTest::PanelFixture;

namespace {

/// The panel speaks German during its life.
class InGerman
{
public:
    InGerman() { Speak(QLocale(QLocale::German)); }
    ~InGerman()
    {
        Speak(QLocale(QLocale::English));
        QLocale::setDefault(QLocale::c());
    }
    InGerman(const InGerman&) = delete;
    InGerman& operator=(const InGerman&) = delete;

private:
    static void Speak(const QLocale& locale)
    {
        QLocale::setDefault(locale);
        PanelTranslation::Follow();
        QApplication::processEvents();
    }
};

/// A packet with these attributes.
QByteArray MakeLook(const QByteArray& attributes)
{
    return QByteArray(
               "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\" ") +
           attributes + "/></rdf:RDF>";
}

class ForeignImportTest : public PanelFixture
{
protected:
    QString Write(const QString& name, const QByteArray& content)
    {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    bool Drop(const QString& path)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(panel->GetWidget(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted())
            QApplication::sendEvent(panel->GetWidget(), &drop);
        return enter.isAccepted();
    }
    /// The window that tells of the import; null when there is none.
    ImportSummary* FindSummary() { return panel->GetWidget()->findChild<ImportSummary*>(); }
};

} // namespace

TEST_F(ForeignImportTest, aDroppedLookOfAnotherProgramIsAppliedLikeAnyOther)
{
    ASSERT_TRUE(Drop(Write(QStringLiteral("Dark.xmp"), MakeLook("crs:Exposure2012=\"-1\""))));
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dark")});
    EXPECT_EQ(editor.messages, QStringList{QStringLiteral("Imported “Dark”.")});
    EXPECT_FALSE(FindSummary()) << "there is nothing more to tell";
    Click("Dark");
    EXPECT_FALSE(HaveSamePixels(editor.GetResult(), photo));
}

TEST_F(ForeignImportTest, aWindowTellsWhatIsApproximatedAndWhatIsLeftOut)
{
    Drop(Write(
        QStringLiteral("Warm <b>.xmp"),
        MakeLook("crs:Exposure2012=\"1\" crs:Vibrance=\"20\" crs:LuminanceSmoothing=\"25\"")));
    ImportSummary* const summary = FindSummary();
    ASSERT_TRUE(summary);
    EXPECT_FALSE(summary->isModal());
    const QString text = summary->findChild<QTextBrowser*>()->toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("Warm <b>"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Approximately: Vibrance 20")));
    EXPECT_TRUE(text.contains(QStringLiteral("Left out: LuminanceSmoothing 25")));
}

TEST_F(ForeignImportTest, theReportOfAnImportSpeaksTheUsersLanguage)
{
    const InGerman german;
    Write(QStringLiteral("looks/a.xmp"), MakeLook("crs:Exposure2012=\"9\" crs:Vibrance=\"much\""));
    Write(QStringLiteral("looks/b.lrtemplate"), "s = { type = \"Export\" }");
    Write(QStringLiteral("looks/c.xmp"), "<broken");
    Write(QStringLiteral("looks/d.xmp"), MakeLook("crs:LensProfileEnable=\"1\""));
    Write(QStringLiteral("looks/e.lrtemplate"), "s = 7");
    Drop(folder.filePath(QStringLiteral("looks")));
    ASSERT_TRUE(FindSummary());
    const QString text = FindSummary()->findChild<QTextBrowser*>()->toPlainText();
    for (const char* const part :
         {"Exposure2012 9 (begrenzt auf das, was dieses Programm kann)",
          "Vibrance much (erwartet: eine Zahl)",
          "b.lrtemplate: erwartet: eine Vorlage vom Typ „Develop“, gefunden: Typ „Export“",
          "c.xmp:1: erwartet: wohlgeformtes XML", "gefunden: nur LensProfileEnable 1",
          "e.lrtemplate:1: erwartet: \"{\", gefunden: \"7\""})
        EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << "\n" << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("expected"))) << text.toStdString();
}

TEST_F(ForeignImportTest, aFolderThatIsDroppedAgainIsHereAlready)
{
    for (int i = 1; i <= 3; ++i)
        Write(QStringLiteral("looks/%1.xmp").arg(i),
              MakeLook("crs:Exposure2012=\"" + QByteArray::number(i) + '"'));
    Drop(folder.filePath(QStringLiteral("looks")));
    const QString store = StoreText();
    editor.messages.clear();

    Drop(folder.filePath(QStringLiteral("looks")));

    EXPECT_EQ(Shown(UserPage).size(), 3);
    EXPECT_EQ(StoreText(), store);
    EXPECT_EQ(editor.messages, QStringList{QStringLiteral("3 looks are here already.")});
}

TEST_F(ForeignImportTest, theWindowNamesLooksThatAreHereAlready)
{
    Drop(Write(QStringLiteral("Mine.xmp"), MakeLook("crs:Exposure2012=\"1\"")));
    Write(QStringLiteral("looks/a.xmp"), MakeLook("crs:Exposure2012=\"1\""));
    Write(QStringLiteral("looks/b.xmp"), MakeLook("crs:Vibrance=\"20\""));
    editor.messages.clear();
    Drop(folder.filePath(QStringLiteral("looks")));
    EXPECT_EQ(editor.messages, QStringList()) << "the window says it";
    ASSERT_TRUE(FindSummary());
    EXPECT_EQ(FindSummary()->findChild<QLabel*>()->text(),
              QStringLiteral("Imported “b”. One is here already."));
    const QString text = FindSummary()->findChild<QTextBrowser*>()->toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("Here already\na, as “Mine”"))) << text.toStdString();
}

TEST_F(ForeignImportTest, aDroppedFolderGivesItsLooksAndTheReasonsForTheOthers)
{
    for (int i = 1; i <= 3; ++i)
        Write(QStringLiteral("looks/%1.xmp").arg(i),
              MakeLook("crs:Exposure2012=\"" + QByteArray::number(i) + '"'));
    for (int i = 4; i <= 8; ++i)
        Write(QStringLiteral("looks/%1.xmp").arg(i), "<broken");
    ASSERT_TRUE(Drop(folder.filePath(QStringLiteral("looks"))));
    EXPECT_EQ(Shown(UserPage).size(), 3);
    EXPECT_TRUE(StoreText().contains(QStringLiteral("exposure")));
    EXPECT_EQ(editor.messages, QStringList()) << "the window says it";
    ASSERT_TRUE(FindSummary());
    EXPECT_EQ(FindSummary()->findChild<QLabel*>()->text(),
              QStringLiteral("Imported 3 looks. 5 were not imported."));
    const QString text = FindSummary()->findChild<QTextBrowser*>()->toPlainText();
    EXPECT_EQ(text.count(QStringLiteral("expected well-formed XML")), 5);
}

TEST_F(ForeignImportTest, theFolderActionAsksForAFolder)
{
    Write(QStringLiteral("looks/a.xmp"), MakeLook("crs:Exposure2012=\"1\""));
    QTimer::singleShot(0, [this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->selectFile(folder.filePath(QStringLiteral("looks")));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    Trigger("importPresetFolder");
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("a")});
}

TEST_F(ForeignImportTest, theMenuOfTheButtonOffersFilesAndFolders)
{
    QStringList names;
    for (const QAction* const action : Find<QAbstractButton>("importButton").actions())
        names.append(action->objectName());
    EXPECT_EQ(names,
              (QStringList{QStringLiteral("importPresets"), QStringLiteral("importPresetFolder")}));
}

TEST_F(ForeignImportTest, readingThatTakesLongCanBeEndedWithNothingDone)
{
    QTimer click;
    QObject::connect(&click, &QTimer::timeout, [] {
        auto* const dialog = QApplication::activeModalWidget();
        if (!dialog || dialog->objectName() != QLatin1String("workProgress"))
            return;
        EXPECT_EQ(dialog->findChild<QProgressBar*>()->maximum(), 1000);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
    });
    click.start(1);
    const auto read = ImportReading(*panel->GetWidget()).Run([](const auto& progress) {
        while (progress(7, 1000, QStringLiteral("a.xmp")))
            QThread::yieldCurrentThread();
        return ImportedFiles{ImportedFile()};
    });
    EXPECT_FALSE(read.has_value());
}

TEST_F(ForeignImportTest, theDialogOfLongReadingClosesByItself)
{
    std::atomic<bool> isShown{false};
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&isShown] {
        isShown = isShown || QApplication::activeModalWidget() != nullptr;
    });
    look.start(1);
    const auto read = ImportReading(*panel->GetWidget()).Run([&isShown](const auto& progress) {
        while (!isShown && progress(7, 1000, QStringLiteral("a.xmp")))
            QThread::yieldCurrentThread();
        return ImportedFiles{ImportedFile()};
    });
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->size(), 1u);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(ForeignImportTest, whatReadingThrowsComesBack)
{
    const auto fail = [](const PresetImport::Progress&) -> ImportedFiles {
        throw std::runtime_error("no memory");
    };
    EXPECT_THROW(ImportReading(*panel->GetWidget()).Run(fail), std::runtime_error);
}
