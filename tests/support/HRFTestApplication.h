#pragma once

#include "kit/HRFBackground.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

/// For tests that need an event loop, and a folder of their own.
class HRFApplicationTest : public ::testing::Test
{
protected:
    HRFApplicationTest()
    {
        static int argc = 1;
        static char name[] = "tests";
        static char *argv[] = {name, nullptr};
        static const QCoreApplication application(argc, argv);
    }
    void TearDown() override { HRFBackground::waitUntilIdle(); }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Lets events happen until the condition holds; a test that waits in vain fails.
    static void waitUntil(const std::function<bool()> &condition)
    {
        constexpr int patience = 60000;
        EXPECT_TRUE(QTest::qWaitFor(condition, patience));
    }

private:
    QTemporaryDir m_folder;
};
