#pragma once

#include "core/foundation/Id.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace tw::desktop::problems {

/** A kind of problem, as lists name it. */
struct ProblemCategory
{
    /** Stable, in lower case. */
    QString id;
    QString title;
};

/** Something in the project that the writer may want to change. */
struct Problem
{
    QString categoryId;
    /** A sentence for the writer. */
    QString message;
    /** The words it is about, and a few of those around them. */
    QString text;
    QString context;
    /** Which one of its category with this text in its object, from 0. */
    int ordinal = 0;

    friend bool operator==(const Problem&, const Problem&) = default;
};

/**
 * Finds problems of one sort in the objects of the project, on its own time. Main thread only; the work may
 * be done elsewhere.
 */
class ProblemSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual std::vector<ProblemCategory> categories() const = 0;
    [[nodiscard]] virtual QColor colorOf(const QString& categoryId) const = 0;

    /**
     * What the source looks at by itself, because it is no document: the objects with problems, in the order
     * to list them; null stands for the project. They are listed with the whole manuscript.
     */
    [[nodiscard]] virtual std::vector<core::ContentId> ownObjects() const { return {}; }
    /** The objects that are looked at, in their order; what is known of the others is kept. */
    virtual void setObjects(const std::vector<core::ContentId>& objects) = 0;
    /** In the order of the object; empty when nothing is known yet. */
    [[nodiscard]] virtual const std::vector<Problem>& problemsOf(const core::ContentId& object) const = 0;
    /** Whether there are objects whose problems are not known yet. */
    [[nodiscard]] virtual bool isBusy() const = 0;

    /** Goes to the place of the problem. */
    virtual void show(const core::ContentId& object, const Problem& problem) = 0;
    /** What may take the place of the text. May take a tenth of a second. */
    [[nodiscard]] virtual QStringList suggestions(const core::ContentId& object, const Problem& problem) = 0;
    virtual void replace(
        const core::ContentId& object, const Problem& problem, const QString& suggestion) = 0;
    /** False when every problem has to be settled: the three below are not asked for then. */
    [[nodiscard]] virtual bool canIgnore() const = 0;
    virtual void ignore(const core::ContentId& object, const Problem& problem) = 0;
    /** Whether problems of the object are ignored. */
    [[nodiscard]] virtual bool hasIgnored(const core::ContentId& object) = 0;
    /** Lists them again. */
    virtual void restoreIgnored(const core::ContentId& object) = 0;

signals:
    /** The problems of these objects are others now. */
    void problemsChanged(const std::vector<tw::core::ContentId>& objects);
    void ownObjectsChanged();
    void busyChanged(bool isBusy);
};

} // namespace tw::desktop::problems
