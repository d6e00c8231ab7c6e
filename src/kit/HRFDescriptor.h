#pragma once

#include <unistd.h>

/// An open file, closed at the end of the scope.
class HRFDescriptor
{
public:
    /// @param descriptor what ::open answered
    explicit HRFDescriptor(int descriptor) : m_descriptor(descriptor) { }
    HRFDescriptor(const HRFDescriptor &) = delete;
    HRFDescriptor &operator=(const HRFDescriptor &) = delete;
    ~HRFDescriptor()
    {
        if (isOpen())
            ::close(m_descriptor);
    }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

private:
    const int m_descriptor;
};
