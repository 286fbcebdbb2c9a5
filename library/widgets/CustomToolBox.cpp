// SPDX-License-Identifier: MIT
#include "widgets/CustomToolBox.h"

#include "widgets/CustomToolBoxButton.h"

#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>
#include <QtDebug>

#include <memory>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

template <class BoxLayout>
BoxLayout* WithoutMargins(BoxLayout* boxLayout, int spacing)
{
    boxLayout->setContentsMargins(0, 0, 0, 0);
    boxLayout->setSpacing(spacing);
    return boxLayout;
}

} // namespace

CustomToolBox::CustomToolBox(QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags)
{
    auto* outer = WithoutMargins(new QVBoxLayout(this), 0);
    layout = WithoutMargins(new QVBoxLayout(), 0);
    outer->addLayout(layout);
    outer->addStretch();
    setBackgroundRole(QPalette::Button);
    connect(this, &CustomToolBox::currentChanged, this, &CustomToolBox::UpdateTitleWidgets);
}

CustomToolBox::~CustomToolBox()
{
    if (!layout->parent()) // A layout made by relayout() belongs to nobody else.
        delete layout;
}

int CustomToolBox::addItem(QWidget* widget, const QString& text)
{
    return insertItem(-1, widget, QIcon(), text);
}

int CustomToolBox::addItem(QWidget* widget, const QIcon& icon, const QString& text)
{
    return insertItem(-1, widget, icon, text);
}

int CustomToolBox::insertItem(int index, QWidget* widget, const QString& text)
{
    return insertItem(index, widget, QIcon(), text);
}

int CustomToolBox::insertItem(int index, QWidget* widget, const QIcon& icon, const QString& text)
{
    if (!widget)
        return -1;

    const Page page = MakePage(widget, icon, text);
    if (HasPage(index)) {
        InsertPage(index, page);
    } else {
        index = count();
        const int currentRow = CurrentRow();
        pageList.append(page);
        SetCurrentRow(currentRow);
        AddToLayout(page);
    }
    page.button->show();

    const QPointer<CustomToolBox> self(this); // A receiver of the signals may delete the box.
    if (count() == 1)
        setCurrentIndex(0, true);
    if (self) {
        updateTabs();
        itemInserted(index);
    }
    return index;
}

// The widget's end is watched through a connection by name. Unlike a connection to a member, it
// delivers nothing more once this object is being destroyed with its pages.
CustomToolBox::Page CustomToolBox::MakePage(QWidget* widget, const QIcon& icon, const QString& text)
{
    connect(widget, SIGNAL(destroyed(QObject*)), this, SLOT(_q_widgetDestroyed(QObject*)));

    Page page;
    page.widget = widget;
    page.titleLayout = WithoutMargins(new QHBoxLayout(), 1);
    page.button = new CustomToolBoxButton(this);
    page.button->setObjectName(QStringLiteral("qt_toolbox_toolboxbutton"));
    page.button->setCollapsable(!compat);
    connect(page.button, SIGNAL(clicked()), this, SLOT(_q_buttonClicked()));
    page.button->setText(text);
    page.button->setIcon(icon);
    page.titleLayout->addWidget(page.button);
    widget->setParent(this); // A layout without a parent would leave the widget a window.
    widget->hide();
    return page;
}

void CustomToolBox::InsertPage(int index, const Page& page)
{
    const int currentRow = CurrentRow();
    pageList.insert(index, page);
    SetCurrentRow(currentRow >= index ? currentRow + 1 : currentRow);
    relayout();
    if (currentPage && currentIndex() >= index)
        currentPage = nullptr;
}

int CustomToolBox::CurrentRow() const
{
    for (int i = 0; i < count(); ++i) {
        if (currentPage == &pageList.at(i))
            return i;
    }
    return -1;
}

// The list of Qt 6 moves its pages when it grows or shrinks, so the current one is found again.
void CustomToolBox::SetCurrentRow(int row)
{
    currentPage = HasPage(row) ? &pageList[row] : nullptr;
}

void CustomToolBox::AddToLayout(const Page& page)
{
    layout->addLayout(page.titleLayout);
    layout->addWidget(page.widget);
}

// The box has its outer layout, so it refuses the new one, which then lays nothing out. Panels
// depend on nothing more here than that the pages survive.
void CustomToolBox::relayout()
{
    for (const Page& page : qAsConst(pageList))
        layout->removeItem(page.titleLayout); // A row left inside would be deleted with the layout.
    delete layout;
    layout = WithoutMargins(new QVBoxLayout(this), 0);
    for (const Page& page : qAsConst(pageList))
        AddToLayout(page);
}

void CustomToolBox::removeItem(int index)
{
    if (!HasPage(index))
        return;
    QWidget* const pageWidget = widget(index);
    disconnect(pageWidget, SIGNAL(destroyed(QObject*)), this, SLOT(_q_widgetDestroyed(QObject*)));
    pageWidget->setParent(this);

    const QPointer<CustomToolBox> self(this);
    _q_widgetDestroyed(pageWidget);
    if (self)
        itemRemoved(index);
}

// This may run while `object` is being destroyed, so `object` is compared and otherwise only used
// as a QObject.
void CustomToolBox::_q_widgetDestroyed(QObject* object)
{
    ForgetTitleWidget(object);
    const bool isCurrent = currentPage && currentPage->widget == object;
    if (isCurrent)
        currentPage = nullptr;
    const int countBefore = count();
    DropPages(object);
    if (count() == countBefore)
        return;

    object->deleteLater();
    if (pageList.isEmpty())
        emit currentChanged(-1);
    else if (isCurrent)
        setCurrentIndex(0, true);
}

void CustomToolBox::DropPages(const QObject* pageWidget)
{
    for (int i = count() - 1; i >= 0; --i) {
        if (pageList.at(i).widget != pageWidget)
            continue;
        const int currentRow = CurrentRow();
        const Page page = pageList.takeAt(i);
        SetCurrentRow(currentRow > i ? currentRow - 1 : currentRow);
        DeleteHeader(page);
    }
}

/// Deletes the page's row and button. Title widgets stay the caller's, so the page's own and
/// earlier ones of its row are only hidden.
void CustomToolBox::DeleteHeader(const Page& page)
{
    layout->removeWidget(page.widget);
    layout->removeItem(page.titleLayout);
    while (const std::unique_ptr<QLayoutItem> item{page.titleLayout->takeAt(0)}) {
        if (item->widget() && item->widget() != page.button)
            item->widget()->hide();
    }
    delete page.titleLayout;
    delete page.button;
}

int CustomToolBox::count() const
{
    return static_cast<int>(pageList.size());
}

int CustomToolBox::currentIndex() const
{
    return currentPage ? indexOf(currentPage->widget) : -1;
}

QWidget* CustomToolBox::currentWidget() const
{
    return currentPage ? currentPage->widget : nullptr;
}

QWidget* CustomToolBox::widget(int index) const
{
    return HasPage(index) ? pageList.at(index).widget : nullptr;
}

int CustomToolBox::indexOf(QWidget* widget) const
{
    Page page;
    page.widget = widget;
    return static_cast<int>(pageList.indexOf(page));
}

bool CustomToolBox::HasPage(int index) const
{
    return index >= 0 && index < count();
}

CustomToolBoxButton* CustomToolBox::ButtonAt(int index) const
{
    return HasPage(index) ? pageList.at(index).button : nullptr;
}

bool CustomToolBox::isItemEnabled(int index) const
{
    const auto* button = ButtonAt(index);
    return button && button->isEnabled();
}

void CustomToolBox::setItemEnabled(int index, bool enabled)
{
    if (!HasPage(index))
        return;
    const Page page = pageList.at(index); // a copy: the events of a change may add pages
    page.button->setEnabled(enabled);
    if (enabled)
        return;
    if (page.titleWidget)
        page.titleWidget->setDisabled(true);
    if (CurrentRow() == index)
        setCurrentIndex(EnabledNeighbour(index), true);
}

/// Searches outwards for an enabled page. The result is `index` when all others are disabled.
int CustomToolBox::EnabledNeighbour(int index) const
{
    for (int step = 1; HasPage(index + step) || HasPage(index - step); ++step) {
        if (isItemEnabled(index + step))
            return index + step;
        if (isItemEnabled(index - step))
            return index - step;
    }
    return index;
}

QString CustomToolBox::itemText(int index) const
{
    const auto* button = ButtonAt(index);
    return button ? button->text() : QString();
}

void CustomToolBox::setItemText(int index, const QString& text)
{
    if (auto* button = ButtonAt(index))
        button->setText(text);
}

QIcon CustomToolBox::itemIcon(int index) const
{
    const auto* button = ButtonAt(index);
    return button ? button->icon() : QIcon();
}

void CustomToolBox::setItemIcon(int index, const QIcon& icon)
{
    if (auto* button = ButtonAt(index))
        button->setIcon(icon);
}

QString CustomToolBox::itemToolTip(int index) const
{
    const auto* button = ButtonAt(index);
    return button ? button->toolTip() : QString();
}

void CustomToolBox::setItemToolTip(int index, const QString& toolTip)
{
    if (auto* button = ButtonAt(index))
        button->setToolTip(toolTip);
}

void CustomToolBox::addWidgetTitleButton(QWidget* w, int index)
{
    w->setParent(this);
    if (!HasPage(index))
        return;
    pageList.at(index).titleLayout->addWidget(w);
    pageList[index].titleWidget = w;
    connect(w, SIGNAL(destroyed(QObject*)), this, SLOT(_q_widgetDestroyed(QObject*)));
}

void CustomToolBox::ForgetTitleWidget(const QObject* object)
{
    for (Page& page : pageList) {
        if (page.titleWidget == object)
            page.titleWidget = nullptr;
    }
}

void CustomToolBox::UpdateTitleWidgets()
{
    for (int i = 0; i < count(); ++i) {
        QWidget* const titleWidget = pageList.at(i).titleWidget;
        if (!titleWidget)
            continue;
        titleWidget->setEnabled(pageList.at(i).button->isSelected());
        titleWidget->style()->unpolish(titleWidget);
        titleWidget->style()->polish(titleWidget);
    }
}

void CustomToolBox::SetCompat(bool isCompat)
{
    compat = isCompat;
    for (const Page& page : qAsConst(pageList))
        page.button->setCollapsable(!compat);
}

void CustomToolBox::setSpacing(int pixels)
{
    spacing = pixels;
    layout->setSpacing(spacing);
}

int CustomToolBox::getSpacing() const
{
    return spacing;
}

void CustomToolBox::setCurrentIndex(int index, bool forceSelect)
{
    if (!HasPage(index))
        return;
    const Page page = pageList.at(index); // a copy: the events of a change may add pages
    const bool wasSelected = page.button->isSelected();
    page.button->setSelected(forceSelect || !wasSelected);
    page.button->setChecked(forceSelect || !wasSelected);
    if (forceSelect && wasSelected)
        return;

    if (compat)
        ShutCurrentPage();
    SetCurrentRow(index);
    // In compatibility mode the page may itself have been the one just shut.
    const bool isOpen = page.button->isSelected();
    page.widget->setVisible(isOpen);
    updateTabs();

    // The receivers of these signals may remove the page, or delete the box.
    const QPointer<CustomToolBox> self(this);
    emit currentChanged(index);
    if (self)
        emit expandedChanged(index, isOpen);
}

void CustomToolBox::ShutCurrentPage()
{
    if (!currentPage)
        return;
    currentPage->widget->hide();
    currentPage->button->setSelected(false);
    currentPage->button->setChecked(false);
}

void CustomToolBox::setCurrentWidget(QWidget* widget)
{
    const int index = indexOf(widget);
    if (index < 0)
        qWarning("CustomToolBox::setCurrentWidget: widget not contained in tool box");
    setCurrentIndex(index, true);
}

void CustomToolBox::_q_buttonClicked()
{
    const QObject* const clicked = sender();
    for (int i = 0; i < count(); ++i) {
        if (pageList.at(i).button == clicked) {
            setCurrentIndex(i, compat);
            return;
        }
    }
}

void CustomToolBox::updateTabs()
{
    const CustomToolBoxButton* const current = currentPage ? currentPage->button : nullptr;
    bool isAfterCurrent = false;
    for (int i = 0; i < count(); ++i) {
        const Page page = pageList.at(i); // a copy: the events of a change may add pages
        page.button->setIndex(i);
        if (isAfterCurrent) {
            QPalette palette = page.button->palette();
            palette.setColor(page.button->backgroundRole(),
                             page.widget->palette().color(page.widget->backgroundRole()));
            page.button->setPalette(palette);
            page.button->update();
        } else if (page.button->backgroundRole() != QPalette::Window) {
            page.button->setBackgroundRole(QPalette::Window);
            page.button->update();
        }
        isAfterCurrent = page.button == current;
    }
}

void CustomToolBox::itemInserted(int /*index*/) {}

void CustomToolBox::itemRemoved(int /*index*/) {}

bool CustomToolBox::event(QEvent* event)
{
    return QFrame::event(event);
}

void CustomToolBox::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}

void CustomToolBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::StyleChange)
        updateTabs();
    QFrame::changeEvent(event);
}

} // namespace Zorvik::Lumetra::LumetraPresets
