#pragma once

#include "app/text/WordDifference.h"

#include <QTextBrowser>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::snapshots {

/** Two texts laid over each other, in colours; long stretches that are the same are shortened. */
class DifferenceView final : public QTextBrowser
{
    Q_OBJECT

public:
    DifferenceView(theme::ThemeManager& themes, QWidget* parent);

    enum class Restoring
    {
        Offered,
        NotOffered,
    };

    /** Compares the texts; with `Offered` every passage has a link that asks to bring it back. */
    void compare(const QString& before, const QString& after, Restoring restoring);
    void clearComparison();

signals:
    void restoreRequested(const tw::app::text::ChangedPassage& passage);

private:
    void rebuild();

    theme::ThemeManager& m_themes;
    std::vector<app::text::ChangedPassage> m_passages;
    std::vector<app::text::DifferencePiece> m_pieces;
    Restoring m_restoring = Restoring::NotOffered;
    bool m_isComparing = false;
};

/** The beginning and the end of a long text. */
[[nodiscard]] QString shortened(const QString& text);

} // namespace tw::desktop::snapshots
