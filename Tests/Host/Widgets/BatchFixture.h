#pragma once

#include "Host/Widgets/ZVTreeViewModelBatch.h"
#include "Tests/Host/Widgets/TreeRows.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/ModelSignalRecorder.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtTest/QAbstractItemModelTester>

#include <functional>

namespace Zorvane::Testing {

/** A model with everything attached that watches it. */
class BatchFixture
{
public:
    BatchFixture()
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , mirror(&model)
        , recorder(&model)
    {
        sorted.setSourceModel(&model);
        sorted.sort(0);
        QObject::connect(&model, &ZVTreeViewModel::aboutToPublish, &recorder,
                         [this] { recorder.note(QStringLiteral("aboutToPublish")); });
        QObject::connect(&model, &ZVTreeViewModel::published, &recorder,
                         [this] { recorder.note(QStringLiteral("published")); });
    }

    ZVTreeViewItem* root() const { return model.rootItem(); }

    /** What is announced of these changes, between "aboutToPublish" and "published". */
    QStringList inBatch(const std::function<void()>& changes)
    {
        recorder.take();
        {
            const ZVTreeViewModelBatch batch(&model);
            changes();
            if (!recorder.lines().isEmpty())
                recorder.note(QStringLiteral("too early"));
        }
        QStringList lines = recorder.take();
        const bool framed = lines.size() > 2 && lines.first() == QLatin1String("aboutToPublish") &&
                            lines.last() == QLatin1String("published");
        return framed ? lines.mid(1, lines.size() - 2) : lines;
    }

    /** Empty when everybody who watches knows the rows as they are. */
    QString difference() const
    {
        const QString texts = textsOf(root());
        if (texts != textsOf(model))
            return texts + QStringLiteral(" is shown as ") + textsOf(model);
        if (countBelow(sorted, {}) != countBelow(model, {}))
            return QStringLiteral("the sorted proxy is out of step");
        return mirror.difference();
    }

    static int countBelow(const QAbstractItemModel& counted, const QModelIndex& parent)
    {
        int count = counted.rowCount(parent);
        for (int row = 0; row < counted.rowCount(parent); ++row)
            count += countBelow(counted, counted.index(row, 0, parent));
        return count;
    }

    ZVTreeViewModel model;
    QAbstractItemModelTester tester;
    ModelMirror mirror;
    ModelSignalRecorder recorder;
    QSortFilterProxyModel sorted;
};

} // namespace Zorvane::Testing
