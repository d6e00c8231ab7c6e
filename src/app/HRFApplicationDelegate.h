#pragma once

#include "app/HRFTaggingSettings.h"
#include "document/HRFDocumentController.h"
#include "kit/HRFFileReference.h"

#include <memory>
#include <vector>

class HRFListWindow;
class HRFPreferencesWindow;

/// The desktop application: its documents and their windows, from the first to the last.
class HRFApplicationDelegate : public QObject
{
    Q_OBJECT
public:
    HRFApplicationDelegate();
    ~HRFApplicationDelegate() override;

    HRFDocumentController &documents() { return m_documents; }
    HRFListWindow &newList();
    /// The window of the list that the user works with.
    HRFListWindow &currentWindow();
    /// Adds files and folders to the current list, and brings it to the front.
    void open(const std::vector<HRFFileReference> &paths);

    void showPreferences();

    /// Closes a list's window, or ends the program when it is the last one.
    void close(HRFListWindow &window);
    /// Brings a dialog that waits for the user to the front; answers whether there is one.
    bool presentQuestion();
    /// The same as terminate(), unless the user has to answer a question first.
    void quit();
    /// Ends the program as soon as no work on files is pending. Questions on the screen are taken
    /// for cancelled then.
    void terminate();

Q_SIGNALS:
    /// The end has begun; no more files can be taken.
    void willTerminate();
    /// Nothing stands in the way of the end.
    void didTerminate();

private:
    HRFDocumentController m_documents;
    HRFTaggingSettings m_taggingSettings;
    std::vector<std::unique_ptr<HRFListWindow>> m_windows;
    std::unique_ptr<HRFPreferencesWindow> m_preferences; ///< made when it is asked for
    int m_listCount = 0; ///< of all that there have been
};
