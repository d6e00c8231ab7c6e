#pragma once

#include "kit/HRFBackground.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

/// For tests that need an event loop, and a folder of their own.
template <class Application> class HRFTestWithApplication : public ::testing::Test
{
protected:
    HRFTestWithApplication()
    {
        static int argc = 1;
        static char name[] = "tests";
        static char *argv[] = {name, nullptr};
        // Never destroyed: what Qt keeps of its own until the end may outlive no application.
        static const auto *const application = new Application(argc, argv);
        Q_UNUSED(application)
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

using HRFApplicationTest = HRFTestWithApplication<QCoreApplication>;
