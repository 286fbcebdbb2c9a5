// SPDX-License-Identifier: MIT
#include "support/ModelSpy.h"

#include "support/CallLog.h"
#include "support/ModelText.h"

#include <QAbstractItemModel>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

constexpr int AnyRows = -1;

} // namespace

ModelSpy::ModelSpy(CallLog& log, QAbstractItemModel& model) : m_log(log), m_model(model)
{
    WatchData();
    WatchRows();
    WatchColumns();
    WatchLayout();
}

ModelSpy::~ModelSpy()
{
    EXPECT_EQ(m_pending, "") << "announced and never done";
}

std::string ModelSpy::RangeText(const QModelIndex& parent, int first, int last) const
{
    return IndexText(parent) + ", " + std::to_string(first) + ".." + std::to_string(last);
}

void ModelSpy::Begin(const std::string& change, int expectedRows)
{
    EXPECT_EQ(m_pending, "") << "still under way when \"" << change << "\" begins";
    m_pending = change;
    m_expectedRows = expectedRows;
}

void ModelSpy::End(const std::string& change, int rows)
{
    EXPECT_EQ(m_pending, change) << "done without having been announced";
    if (m_expectedRows != AnyRows) {
        EXPECT_EQ(rows, m_expectedRows) << "rows after \"" << change << "\"";
    }
    m_pending.clear();
}

void ModelSpy::WatchData()
{
    connect(&m_model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
                std::vector<std::string> texts;
                for (const int role : roles)
                    texts.push_back(std::to_string(role));
                m_log.Add("model.dataChanged(" + IndexText(first) + ", " + IndexText(last) + ", [" +
                          JoinTexts(texts) + "])");
            });
    connect(&m_model, &QAbstractItemModel::headerDataChanged, this,
            [this](Qt::Orientation, int first, int last) {
                m_log.Call("model.headerDataChanged", first, last);
            });
}

void ModelSpy::WatchRows()
{
    using Model = QAbstractItemModel;
    connect(&m_model, &Model::rowsAboutToBeInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                const auto range = RangeText(parent, first, last);
                m_log.Add("model.rowsAboutToBeInserted(" + range + ")");
                Begin("insert " + range, m_model.rowCount(parent) + last - first + 1);
            });
    connect(&m_model, &Model::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                const auto range = RangeText(parent, first, last);
                m_log.Add("model.rowsInserted(" + range + ")");
                End("insert " + range, m_model.rowCount(parent));
            });
    connect(&m_model, &Model::rowsAboutToBeRemoved, this,
            [this](const QModelIndex& parent, int first, int last) {
                const auto range = RangeText(parent, first, last);
                m_log.Add("model.rowsAboutToBeRemoved(" + range + ")");
                Begin("remove " + range, m_model.rowCount(parent) - (last - first + 1));
            });
    connect(&m_model, &Model::rowsRemoved, this,
            [this](const QModelIndex& parent, int first, int last) {
                const auto range = RangeText(parent, first, last);
                m_log.Add("model.rowsRemoved(" + range + ")");
                End("remove " + range, m_model.rowCount(parent));
            });
    connect(&m_model, &Model::rowsAboutToBeMoved, this, [this] {
        m_log.Add("model.rowsAboutToBeMoved()");
        Begin("move", AnyRows);
    });
    connect(&m_model, &Model::rowsMoved, this, [this] {
        m_log.Add("model.rowsMoved()");
        End("move", AnyRows);
    });
}

void ModelSpy::WatchColumns()
{
    using Model = QAbstractItemModel;
    const auto record = [this](const char* name) {
        return [this, name] { m_log.Add("model." + std::string(name) + "()"); };
    };
    connect(&m_model, &Model::columnsAboutToBeInserted, this, record("columnsAboutToBeInserted"));
    connect(&m_model, &Model::columnsInserted, this, record("columnsInserted"));
    connect(&m_model, &Model::columnsAboutToBeRemoved, this, record("columnsAboutToBeRemoved"));
    connect(&m_model, &Model::columnsRemoved, this, record("columnsRemoved"));
    connect(&m_model, &Model::columnsAboutToBeMoved, this, record("columnsAboutToBeMoved"));
    connect(&m_model, &Model::columnsMoved, this, record("columnsMoved"));
}

void ModelSpy::WatchLayout()
{
    using Model = QAbstractItemModel;
    const auto announce = [this](const char* name, const char* change) {
        return [this, name, change] {
            m_log.Add("model." + std::string(name) + "()");
            Begin(change, AnyRows);
        };
    };
    const auto done = [this](const char* name, const char* change) {
        return [this, name, change] {
            m_log.Add("model." + std::string(name) + "()");
            End(change, AnyRows);
        };
    };
    connect(&m_model, &Model::layoutAboutToBeChanged, this,
            announce("layoutAboutToBeChanged", "layout"));
    connect(&m_model, &Model::layoutChanged, this, done("layoutChanged", "layout"));
    connect(&m_model, &Model::modelAboutToBeReset, this, announce("modelAboutToBeReset", "reset"));
    connect(&m_model, &Model::modelReset, this, done("modelReset", "reset"));
}

} // namespace LumetraTest
