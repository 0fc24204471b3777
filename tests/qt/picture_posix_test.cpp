// Reading a pipe would never end.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "../../platform/qt/pictures.h"

namespace {

TEST(Pictures, APipeIsNone) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("picture.jpg");
  mkfifo(path.toUtf8().constData(), 0600);
  alarm(10);  // who opens it waits for ever
  EXPECT_TRUE(platform::qt::ReadImageFile(path).isNull());
  alarm(0);
}

}  // namespace
