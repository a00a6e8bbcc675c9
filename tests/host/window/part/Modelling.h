#pragma once

#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureFields.h"
#include "FeaturePlacing.h"
#include "FeatureTree.h"
#include "MenuUser.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "PartActions.h"
#include "PartModel.h"
#include "ShapePicker.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTreeWidget>

/// A window with the menu of the part, its tree and its fields, as a user drives them.
struct Modelling
{
    explicit Modelling(PartView* view = nullptr)
        : picker(new ShapePicker(model, view, &window))
        , placing(new FeaturePlacing(model, view, *picker, &window))
        , actions(new PartActions(model, *tree, *fields, *placing, &window))
    {
        window.addDockWidget(Qt::LeftDockWidgetArea, tree);
        window.addDockWidget(Qt::LeftDockWidgetArea, fields);
        QObject::connect(tree, &FeatureTree::SelectionChanged, fields, [this] {
            fields->ShowFeature(tree->Selected().size() == 1 ? tree->Selected().first()
                                                             : QString());
        });
        actions->FillMenu(*window.menuBar()->addMenu("Model"));
        window.resize(900, 700);
        window.show();
    }

    QAction& Action(const char* name) const { return FindAction(window, name); }
    /// Also waits for the part that the action changes.
    void Trigger(const char* name) const
    {
        ::Trigger(window, name);
        model.WaitUntilIdle();
    }
    void Select(const QStringList& names)
    {
        auto& list = Find<QTreeWidget>(window, "featureTree");
        list.clearSelection();
        for (const QString& name : names)
            list.topLevelItem(model.Features().Find(name))->setSelected(true);
        QCOMPARE(tree->Selected(), names);
    }
    QStringList Names() const
    {
        QStringList names;
        for (const Feature& feature : model.Features().Features())
            names << feature.name;
        return names;
    }
    const Feature& Last() const { return model.Features().At(model.Features().Size() - 1); }

    void AddSamples()
    {
        model.Add(NewFeature("plate", "box"));
        model.Add(NewFeature("pin", "cylinder", {}, {{"radius", "2"}}));
        model.Add(NewFeature("body", "fuse", {"plate", "pin"}));
        model.WaitUntilIdle();
    }
    void CheckRefused(const QString& words) const
    {
        QCOMPARE(posted.count(), 1);
        QCOMPARE(posted[0][0].toInt(), int(ErrorLevel));
        QVERIFY2(posted[0][1].toString().contains(words), qPrintable(posted[0][1].toString()));
    }

    EmptyDesignStores stores;
    QMainWindow window;
    PartModel model;
    FeatureTree* tree = new FeatureTree(model, &window);
    FeatureFields* fields = new FeatureFields(model, &window);
    ShapePicker* picker;
    FeaturePlacing* placing;
    PartActions* actions;
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};
