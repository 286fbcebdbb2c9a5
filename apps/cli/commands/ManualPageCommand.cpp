// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "manual/ManualPage.h"

#include <QFile>

#include <boost/current_function.hpp>

namespace LumetraCli {
namespace {

QString ReadTemplate(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw Zorvik::Exception(
            QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString()).toStdString(),
            BOOST_CURRENT_FUNCTION, "commands/ManualPageCommand", __LINE__);
    return QString::fromUtf8(file.readAll());
}

/// Prints the manual page, for the build of the program.
class ManualPageCommand : public Command
{
public:
    ManualPageCommand() : Command(QStringLiteral("manual-page"), "Prints the manual page.") {}
    bool IsHidden() const override { return true; }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ManualPageCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("FILE"), QStringLiteral("The template to fill."));
}

ExitCode ManualPageCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QString text = ReadTemplate(Arguments(parser, 1, 1).first());
    console.PrintText(ManualPage::Make(text, GetShownCommands()));
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeManualPageCommand()
{
    return std::make_unique<ManualPageCommand>();
}

} // namespace LumetraCli
