// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/AboutDialog.h"

#include "appearance/Icons.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVariant>
#include <QWindow>

namespace LumetraEditor {
namespace {

constexpr int IconSize = 64;

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About Lumetra"));
    auto* const icon = new QLabel(this);
    icon->setPixmap(
        MakeProgramIcon().pixmap(parent->window()->windowHandle(), {IconSize, IconSize}));
    auto* const name = new QLabel(QStringLiteral("Lumetra"), this);
    name->setObjectName(QStringLiteral("aboutName"));
    auto* const version =
        new QLabel(tr("Version %1").arg(QCoreApplication::applicationVersion()), this);
    version->setObjectName(QStringLiteral("aboutVersion"));
    version->setProperty("muted", true);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const text = new QLabel(
        tr("A photo editor built around looks.\n\nFree software under the GNU General Public "
           "License,\nversion 2 or later. It comes without any warranty."),
        this);
    text->setObjectName(QStringLiteral("aboutText"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(24, 24, 24, 16);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(0);
    grid->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(version, 1, 1);
    grid->setRowMinimumHeight(2, 16);
    grid->addWidget(text, 3, 1);
    grid->setRowMinimumHeight(4, 24);
    grid->addWidget(buttons, 5, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace LumetraEditor
