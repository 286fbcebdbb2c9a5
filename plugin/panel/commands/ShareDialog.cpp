// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/ShareDialog.h"

#include "catalogue/VisibleText.h"
#include "core/looks/LookFormat.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace LumetraPlugin {
namespace {

constexpr int ListHeight = 260;
constexpr int Width = 400;

/// Names of licences are the same in all languages.
const QStringList Licences{QString(), QStringLiteral("CC0-1.0"), QStringLiteral("CC-BY-4.0"),
                           QStringLiteral("CC-BY-SA-4.0"), QStringLiteral("CC-BY-NC-4.0")};

ShareCredits CreditsOf(const PresetModel& model, const QModelIndex& preset)
{
    ShareCredits credits;
    if (const auto look = model.GetPreset(preset)) {
        credits.author = QString::fromStdString(look->GetCredits().author);
        credits.licence = QString::fromStdString(look->GetCredits().licence);
    }
    return credits;
}

QString FirstOf(const QString& one, const QString& other)
{
    return one.isEmpty() ? other : one;
}

/// The text in one line, as files with looks have it: nothing that was pasted makes one unreadable.
QString Clean(const QString& text)
{
    return LumetraHost::VisibleText::WithoutControls(text).trimmed();
}

std::string Choose(const std::string& own, const QString& said, const QString& proposed)
{
    const bool isOwnKept = said.isEmpty() || (said == proposed && !own.empty());
    return isOwnKept ? own : said.toStdString();
}

} // namespace

ShareDialog::ShareDialog(const PresetModel& model, const QModelIndex& first,
                         const ShareCredits& last, QWidget* parent)
    : QDialog(parent), m_last(last),
      m_own(CreditsOf(model, first)), m_proposed{FirstOf(m_own.author, last.author),
                                                 FirstOf(m_own.licence, last.licence)},
      m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("shareLooks"));
    setWindowTitle(tr("Share looks"));
    auto* const column = new QVBoxLayout(this);
    auto* const note = new QLabel(
        tr("The file holds the looks with their tables and a small picture of each. Your photos "
           "stay with you."),
        this);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addWidget(m_list, 1);
    column->addWidget(MakeFields(m_proposed));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_share = new QPushButton(tr("Share…"));
    m_share->setObjectName(QStringLiteral("shareButton"));
    m_share->setProperty("accent", true); // before the box has the button styled
    buttons->addButton(m_share, QDialogButtonBox::AcceptRole);
    m_share->setDefault(true);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setMinimumWidth(Width);
    FillList(model, first);
    connect(m_list, &QTreeWidget::itemChanged, this, &ShareDialog::ShowChoice);
    ShowChoice();
}

ShareDialog::~ShareDialog() = default;

QWidget* ShareDialog::MakeFields(const ShareCredits& proposed)
{
    auto* const part = new QWidget(this);
    auto* const form = new QFormLayout(part);
    form->setContentsMargins(0, 0, 0, 0);
    m_author = new QLineEdit(proposed.author, part);
    m_author->setObjectName(QStringLiteral("author"));
    m_author->setMaxLength(LookFormat::LongestCredit);
    m_licence = new QComboBox(part);
    m_licence->setObjectName(QStringLiteral("licence"));
    m_licence->setEditable(true);
    m_licence->addItems(Licences);
    m_licence->lineEdit()->setMaxLength(LookFormat::LongestCredit);
    m_licence->setCurrentText(proposed.licence);
    form->addRow(tr("&Author:"), m_author);
    form->addRow(tr("&Licence:"), m_licence);
    return part;
}

void ShareDialog::FillList(const PresetModel& model, const QModelIndex& first)
{
    m_list->setObjectName(QStringLiteral("looksToShare"));
    m_list->setAccessibleName(tr("Looks"));
    m_list->setHeaderHidden(true);
    m_list->setMinimumHeight(ListHeight);
    for (int g = 0; g < model.rowCount(); ++g) {
        const QModelIndex group = model.index(g, 0);
        auto* const item = new QTreeWidgetItem(m_list);
        const bool isUsers = group.data(PresetModel::PresetIdRole).toBool();
        const QString name = group.data(PresetModel::ShownNameRole).toString();
        item->setText(0, isUsers ? tr("My looks") : name);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemIsAutoTristate);
        for (int i = 0; i < model.rowCount(group); ++i) {
            const QModelIndex preset = model.index(i, 0, group);
            if (!preset.data(PresetModel::DownloadableRole).toBool())
                AddPreset(*item, preset, preset == first);
        }
        item->setExpanded(isUsers || group == first.parent());
        item->setHidden(item->childCount() == 0);
    }
}

void ShareDialog::AddPreset(QTreeWidgetItem& group, const QModelIndex& preset, bool isChosen)
{
    auto* const item = new QTreeWidgetItem(&group);
    item->setText(0, preset.data(PresetModel::ShownNameRole).toString());
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(0, isChosen ? Qt::Checked : Qt::Unchecked);
    m_presets.emplace_back(item, preset);
    if (!isChosen)
        return;
    m_list->setCurrentItem(item);
    m_list->scrollToItem(item);
}

std::vector<QModelIndex> ShareDialog::GetPresets() const
{
    std::vector<QModelIndex> presets;
    for (const auto& [item, preset] : m_presets)
        if (item->checkState(0) == Qt::Checked && preset.isValid())
            presets.push_back(preset);
    return presets;
}

QString ShareDialog::GetAuthor() const
{
    return Clean(m_author->text());
}

QString ShareDialog::GetLicence() const
{
    return Clean(m_licence->currentText());
}

LookCredits ShareDialog::MakeCredits(const LookCredits& own) const
{
    LookCredits credits = own;
    credits.author = Choose(own.author, GetAuthor(), m_proposed.author);
    credits.licence = Choose(own.licence, GetLicence(), m_proposed.licence);
    return credits;
}

/// Somebody else's look does not make the user that person.
ShareCredits ShareDialog::MakeLast() const
{
    const auto choose = [](const QString& said, const QString& own, const QString& last) {
        return !own.isEmpty() && said == own ? last : said;
    };
    return {choose(GetAuthor(), m_own.author, m_last.author),
            choose(GetLicence(), m_own.licence, m_last.licence)};
}

void ShareDialog::ShowChoice()
{
    m_share->setEnabled(!GetPresets().empty());
}

} // namespace LumetraPlugin
