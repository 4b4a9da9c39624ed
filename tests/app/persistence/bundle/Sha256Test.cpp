#include "app/persistence/bundle/Sha256.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace tw::app::persistence {

TEST(Sha256, isThatOfQtAtEveryLength)
{
    QRandomGenerator random(3);
    QByteArray bytes;
    for (int length = 0; length < 400; ++length) {
        EXPECT_EQ(sha256(bytes), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256)) << length;
        bytes.append(static_cast<char>(random.generate()));
    }
    bytes = bytes.repeated(5000) + 'x';
    EXPECT_EQ(sha256(bytes), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
}

} // namespace tw::app::persistence
