// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QFrame>
#include <QIcon>
#include <QList>

class QHBoxLayout;
class QVBoxLayout;

namespace Zorvik::Lumetra::LumetraPresets {

class CustomToolBoxButton;

/// A column of pages, each under a header button that opens and shuts it; several may be open. In
/// compatibility mode it is a classic tool box: one open page, which its own header does not shut.
///
/// Pages are meant to be appended: one inserted between others leaves the box without a working
/// layout. The box owns the pages' widgets. It paints nothing itself; style sheets address the
/// headers as "qt_toolbox_toolboxbutton", checked while open.
class LUMETRAPRESETSUTIL_EXPORT CustomToolBox : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int spacing READ getSpacing WRITE setSpacing)

public:
    explicit CustomToolBox(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CustomToolBox() override;

    /// Appends; see insertItem().
    int addItem(QWidget* widget, const QString& text);
    int addItem(QWidget* widget, const QIcon& icon, const QString& text);
    /// Inserts a page before `index`, or appends it where no page has that index. The first page
    /// of all opens, others start shut. Returns the page's index, -1 for a null widget.
    int insertItem(int index, QWidget* widget, const QString& text);
    int insertItem(int index, QWidget* widget, const QIcon& icon, const QString& text);
    /// Removes the page; its widget is deleted in the event loop's next round, the title widgets of
    /// its row stay hidden children. If it was the current page, page 0 is opened.
    void removeItem(int index);

    int count() const;
    /// The page selected or toggled last, open or not; -1 and null for none.
    int currentIndex() const;
    QWidget* currentWidget() const;
    /// Null where no page has that index.
    QWidget* widget(int index) const;
    /// -1 for a widget that is no page.
    int indexOf(QWidget* widget) const;

    // Of the page's header. Without such a page: false, an empty text, a null icon, no effect.
    bool isItemEnabled(int index) const;
    /// Disabling the current page opens its nearest enabled neighbour, the following one first.
    void setItemEnabled(int index, bool enabled);
    QString itemText(int index) const;
    void setItemText(int index, const QString& text);
    QIcon itemIcon(int index) const;
    void setItemIcon(int index, const QIcon& icon);
    QString itemToolTip(int index) const;
    void setItemToolTip(int index, const QString& toolTip);

    /// Puts `w`, which the box takes over, at the end of the page's header row. From the next
    /// currentChanged() on it is enabled exactly while the page is open. An earlier one stays in
    /// the row, and is no longer enabled or disabled with the page.
    void addWidgetTitleButton(QWidget* w, int index);

    /// Compatibility mode; opens and shuts nothing by itself.
    void SetCompat(bool isCompat);

    /// Pixels between headers and pages.
    void setSpacing(int pixels);
    int getSpacing() const;

signals:
    /// After every opening or shutting of a page; -1 when the last page is gone.
    void currentChanged(int index);
    void expandedChanged(int index, bool expanded);

public slots:
    /// Toggles the page, or with `forceSelect` opens it; one that is open then stays as it is.
    void setCurrentIndex(int index, bool forceSelect = false);
    /// Opens the page; warns about a widget that is none.
    void setCurrentWidget(QWidget* widget);

protected:
    /// Called after an insertion and a removal, for derived classes.
    virtual void itemInserted(int index);
    virtual void itemRemoved(int index);

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void _q_buttonClicked();
    void _q_widgetDestroyed(QObject* object);

private:
    struct Page
    {
        CustomToolBoxButton* button = nullptr;
        QWidget* titleWidget = nullptr;
        QWidget* widget = nullptr;
        QHBoxLayout* titleLayout = nullptr;

        bool operator==(const Page& other) const { return widget == other.widget; }
    };

    bool HasPage(int index) const;
    CustomToolBoxButton* ButtonAt(int index) const;
    Page MakePage(QWidget* widget, const QIcon& icon, const QString& text);
    void InsertPage(int index, const Page& page);
    void AddToLayout(const Page& page);
    void relayout();
    void ShutCurrentPage();
    int EnabledNeighbour(int index) const;
    void DropPages(const QObject* pageWidget);
    void DeleteHeader(const Page& page);
    void ForgetTitleWidget(const QObject* object);
    void UpdateTitleWidgets();
    void updateTabs();

    // `currentPage` points into `pageList`, whose elements stay in place while it grows or
    // shrinks, as long as the list is never shared.
    QList<Page> pageList;
    QVBoxLayout* layout = nullptr;
    Page* currentPage = nullptr;
    int spacing = 0;
    bool compat = false;
};

} // namespace Zorvik::Lumetra::LumetraPresets
