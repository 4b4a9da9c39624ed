#include "app/persistence/files/JsonFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

TEST(JsonFile, saysWhyAFileHoldsNoObject)
{
    DiskFileSystem files;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"100%1.json"_s);
    EXPECT_EQ(readJsonFile(files, path).message(), u"Cannot read file: "_s + path);
    EXPECT_EQ(readJsonFile(files, folder.path()).message(), u"Cannot read file: "_s + folder.path());
    for (const char* broken : {"", "[]", "{\"a\": 1", "{} x", "\"text\"", "{\"a\": 1e999}"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(broken);
        file.close();
        EXPECT_EQ(readJsonFile(files, path).message(), u"Invalid JSON in file: "_s + path) << broken;
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"a\": \"b\"}");
    file.close();
    EXPECT_EQ(readJsonFile(files, path).value().value(u"a"_s), u"b"_s);
}
