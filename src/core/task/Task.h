#pragma once

#include "core/content/ContentObject.h"

#include <array>
#include <optional>

namespace tw::core::task {

enum class TaskPriority : qint32
{
    Low = 0,
    Normal = 1,
    High = 2,
    Urgent = 3,
};

[[nodiscard]] QLatin1String taskPriorityName(TaskPriority priority);
[[nodiscard]] std::optional<TaskPriority> taskPriorityFromName(QStringView name);

/** Where a text was sent, for the submission tracker. */
struct Submission
{
    QString recipient;
    /** "query", "full manuscript", ... */
    QString kind;
    /** "yyyy-MM-dd"; kept as text. */
    QString submittedOn;
    QString notes;

    friend bool operator==(const Submission&, const Submission&) = default;
};

class Task final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Task;

    Task(ContentId id, QString title);
    ~Task() override;

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    [[nodiscard]] const QString& description() const { return m_description; }
    void setDescription(QString description) { m_description = std::move(description); }

    [[nodiscard]] bool isDone() const { return m_done; }
    void setDone(bool done) { m_done = done; }

    /** The board's name; empty for the default board. */
    [[nodiscard]] const QString& board() const { return m_board; }
    void setBoard(QString board) { m_board = std::move(board); }

    [[nodiscard]] TaskPriority priority() const { return m_priority; }
    void setPriority(TaskPriority priority) { m_priority = priority; }

    /** "yyyy-MM-dd", or empty; kept as text. */
    [[nodiscard]] const QString& dueDate() const { return m_dueDate; }
    void setDueDate(QString date) { m_dueDate = std::move(date); }

    /** The column on the board. */
    [[nodiscard]] const QString& status() const { return m_status; }
    void setStatus(QString status) { m_status = std::move(status); }

    /** The object the task is about; null for none. */
    [[nodiscard]] const ContentId& targetId() const { return m_targetId; }
    void setTargetId(ContentId id) { m_targetId = id; }

    [[nodiscard]] qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    [[nodiscard]] const std::optional<Submission>& submission() const { return m_submission; }
    void setSubmission(std::optional<Submission> submission) { m_submission = std::move(submission); }

    friend bool operator==(const Task& left, const Task& right);

private:
    QString m_title;
    QString m_description;
    bool m_done = false;
    TaskPriority m_priority = TaskPriority::Normal;
    qint32 m_sortIndex = 0;
    QString m_board;
    QString m_dueDate;
    QString m_status;
    ContentId m_targetId;
    std::optional<Submission> m_submission;
};

} // namespace tw::core::task
