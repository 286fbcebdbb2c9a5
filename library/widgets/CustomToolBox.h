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

/// The box is a column of pages, each under a header button that opens and shuts it; several may be
/// open. In compatibility mode it is a classic tool box: one page is open, and its own header does
/// not shut it.
///
/// Pages are meant to be appended: one inserted between others leaves the box without a working
/// layout. The box owns the pages' widgets; a page goes when its widget is deleted. The box paints
/// nothing itself; style sheets address the headers as "qt_toolbox_toolboxbutton", checked while
/// open. Nothing is thrown. Receivers of its signals may remove pages and delete the box.
class LUMETRAPRESETSUTIL_EXPORT CustomToolBox : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int spacing READ getSpacing WRITE setSpacing)

public:
    /// Makes a box without pages in normal mode, where several pages may be open. `parent` owns it.
    explicit CustomToolBox(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CustomToolBox() override;

    /// Appends a page as insertItem() does, and returns its index, -1 for a null widget.
    int addItem(QWidget* widget, const QString& text);
    int addItem(QWidget* widget, const QIcon& icon, const QString& text);
    /// Inserts a page before `index`, or appends it where no page has that index. The box becomes
    /// the parent of `widget`. The first page of all opens, others start shut. A current page at or
    /// after the place is current no longer, but stays as open as it was. Returns the page's index,
    /// -1 for a null widget.
    int insertItem(int index, QWidget* widget, const QString& text);
    int insertItem(int index, QWidget* widget, const QIcon& icon, const QString& text);
    /// Removes the page. Its widget is deleted in the event loop's next round; the title widgets of
    /// its row stay hidden children of the box. If it was the current page, page 0 is opened; if
    /// that was open already, no page is current. Does nothing where no page has that index.
    void removeItem(int index);

    /// Returns the number of pages; their indexes go from 0 to one less.
    int count() const;
    /// These two give the page that was selected or toggled last, whether open or shut; -1 and null
    /// when there is none.
    int currentIndex() const;
    QWidget* currentWidget() const;
    /// Returns the widget of a page, null where no page has that index. The box keeps it.
    QWidget* widget(int index) const;
    /// Returns the index of the page with that widget, -1 when there is none.
    int indexOf(QWidget* widget) const;

    /// True for a page whose header is enabled, false where no page has that index.
    bool isItemEnabled(int index) const;
    /// Enables or disables the page's header. Disabling the current page opens its nearest enabled
    /// neighbour, the following one first, or itself when there is none. Disabling also disables
    /// the title widget, which enabling leaves alone. Does nothing where no page has that index.
    void setItemEnabled(int index, bool enabled);
    /// These operations read and write the text, icon and tool tip of the page's header. Where no
    /// page has that index, the text is empty, the icon is null, and nothing is written.
    QString itemText(int index) const;
    void setItemText(int index, const QString& text);
    QIcon itemIcon(int index) const;
    void setItemIcon(int index, const QIcon& icon);
    QString itemToolTip(int index) const;
    void setItemToolTip(int index, const QString& toolTip);

    /// Puts `w`, whose parent the box becomes, at the end of the page's header row. From the next
    /// currentChanged() on it is enabled exactly while the page is open. An earlier one stays in
    /// the row, and is no longer enabled or disabled with the page. Where no page has that index,
    /// only the parent changes. `w` must not be null.
    void addWidgetTitleButton(QWidget* w, int index);

    /// Switches compatibility mode on or off. Pages stay open or shut as they are; later clicks
    /// follow the new mode.
    void SetCompat(bool isCompat);

    /// The spacing is the number of pixels between headers and pages; it starts as 0. A page that
    /// is inserted between others resets the layout's, while getSpacing() keeps the value.
    void setSpacing(int pixels);
    int getSpacing() const;

signals:
    /// Comes after every opening or shutting of a page, with that page's index, also when the
    /// current page is the same as before. -1 says that the last page is gone.
    void currentChanged(int index);
    /// Comes after currentChanged() and tells whether the page is open now. A page that shuts in
    /// compatibility mode because another one opens is not told of.
    void expandedChanged(int index, bool expanded);

public slots:
    /// Makes the page current and toggles it, or with `forceSelect` opens it. A forced page that is
    /// open already stays as it is, and nothing is sent. In compatibility mode the page that was
    /// current is shut, even if it is this one. An index that no page has is ignored. Writing the
    /// property `currentIndex` toggles, too.
    void setCurrentIndex(int index, bool forceSelect = false);
    /// Opens the page with that widget and makes it current unless it was open. A widget that is no
    /// page's is warned about and ignored.
    void setCurrentWidget(QWidget* widget);

protected:
    /// These two are called after insertItem() has inserted and removeItem() has removed a page,
    /// and not when a page goes because its widget is deleted. Derived classes may override them;
    /// here they do nothing.
    virtual void itemInserted(int index);
    virtual void itemRemoved(int index);

    /// These handlers pass their events to the base classes. A change of style updates the headers.
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
    int CurrentRow() const;
    void SetCurrentRow(int row);
    void AddToLayout(const Page& page);
    void relayout();
    void ShutCurrentPage();
    int EnabledNeighbour(int index) const;
    void DropPages(const QObject* pageWidget);
    void DeleteHeader(const Page& page);
    void ForgetTitleWidget(const QObject* object);
    void UpdateTitleWidgets();
    void updateTabs();

    // `currentPage` points into `pageList`. The list's elements stay in place while it grows or
    // shrinks, as long as the list is never shared.
    QList<Page> pageList;
    QVBoxLayout* layout = nullptr;
    Page* currentPage = nullptr;
    int spacing = 0;
    bool compat = false;
};

} // namespace Zorvik::Lumetra::LumetraPresets
