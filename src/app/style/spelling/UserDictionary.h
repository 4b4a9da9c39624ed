#pragma once

#include "app/style/spelling/WordSetSpellChecker.h"
#include "core/foundation/Result.h"

#include <memory>

namespace tw::app::style::spelling {

/**
 * The words that the user added, in a text file of one word a line. Lines that are no word are left as they
 * are and count for nothing. Other programs may change the file: every change begins by reading it anew. One
 * thread at a time; the checkers it hands out may be used from any.
 */
class UserDictionary
{
public:
    /** Reads nothing yet; without load() the dictionary is empty. */
    explicit UserDictionary(QString path);

    /** A file that is not there holds no words. */
    [[nodiscard]] core::Result<void> load();

    /** In the order of the alphabet. */
    [[nodiscard]] const QStringList& words() const { return m_words; }
    [[nodiscard]] std::shared_ptr<const WordSetSpellChecker> checker() const { return m_checker; }

    /** Adds a word and writes the file; a word that is there already changes nothing. */
    [[nodiscard]] core::Result<void> add(const QString& word);
    /** Removes a word, in whatever case the file has it, and writes the file. */
    [[nodiscard]] core::Result<void> remove(const QString& word);

private:
    [[nodiscard]] core::Result<QByteArray> read() const;
    [[nodiscard]] core::Result<void> write(const QByteArray& bytes);
    void take(const QByteArray& bytes);

    QString m_path;
    QStringList m_words;
    std::shared_ptr<const WordSetSpellChecker> m_checker;
};

} // namespace tw::app::style::spelling
