// SPDX-License-Identifier: MIT
#include "support/ModelSpy.h"
#include "support/CallLog.h"
#include "support/ModelText.h"

#include <QStandardItemModel>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

using namespace LumetraTest;
using testing::Contains;
using testing::ElementsAre;

namespace {

/// Sends signals on demand, whether they are true or not.
class LyingModel : public QStandardItemModel
{
public:
    void RemoveNothing()
    {
        beginRemoveRows(QModelIndex(), 0, 0);
        endRemoveRows();
    }
};

} // namespace

TEST(ModelSpy, recordsAboutToAndDoneAmongOtherCalls)
{
    CallLog log;
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    const ModelSpy spy(log, model);

    model.item(0)->setData(5, 258);
    log.Add("something else");
    model.removeRow(0);

    EXPECT_THAT(log.Take(),
                ElementsAre("model.dataChanged(0, 0, [258])", "something else",
                            "model.rowsAboutToBeRemoved(-, 0..0)", "model.rowsRemoved(-, 0..0)"));
}

TEST(ModelSpy, recordsResetsAndLayoutChanges)
{
    CallLog log;
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    const ModelSpy spy(log, model);
    model.sort(0);
    model.clear();
    EXPECT_THAT(log.GetLines(), Contains("model.layoutAboutToBeChanged()"));
    EXPECT_THAT(log.GetLines(), Contains("model.layoutChanged()"));
    EXPECT_THAT(log.GetLines(), Contains("model.modelAboutToBeReset()"));
    EXPECT_THAT(log.GetLines(), Contains("model.modelReset()"));
}

TEST(ModelSpy, failsTheTestWhenFewerRowsGoThanAnnounced)
{
    CallLog log;
    LyingModel model;
    model.appendRow(new QStandardItem);
    const ModelSpy spy(log, model);
    EXPECT_NONFATAL_FAILURE(model.RemoveNothing(), "rows after \"remove -, 0..0\"");
}

TEST(ModelText, printsRowsIndentedByLevel)
{
    QStandardItemModel model;
    auto* group = new QStandardItem(QStringLiteral("group"));
    auto* item = new QStandardItem(QStringLiteral("item"));
    item->setData(true, 258);
    group->appendRow(item);
    model.appendRow(group);
    EXPECT_THAT(ModelText(model, {Qt::DisplayRole, 258}),
                ElementsAre("\"group\" | -", "  \"item\" | true"));
}

TEST(ModelText, tellsIndexesByRowAndColumn)
{
    QStandardItemModel model;
    auto* group = new QStandardItem;
    group->appendRow({new QStandardItem, new QStandardItem});
    model.appendRow(group);
    EXPECT_EQ(IndexText(QModelIndex()), "-");
    EXPECT_EQ(IndexText(model.index(0, 0)), "0");
    EXPECT_EQ(IndexText(model.index(0, 1, model.index(0, 0))), "0/0:1");
}
