#pragma once

#include <filesystem>
#include <memory>
#include <string>

/// The other way to work on files: through a list, as the programs do. Needs a QCoreApplication.
class HRFListSide
{
public:
    /// An empty list with a store of its own.
    HRFListSide();
    HRFListSide(const HRFListSide &) = delete;
    HRFListSide &operator=(const HRFListSide &) = delete;
    ~HRFListSide();

    /// Adds all files below the folder, until they are in the store.
    void import(const std::filesystem::path &folder);
    /// Gives some of the files a title, until the files have it and the records are refreshed.
    void writeTitle(std::size_t first, std::size_t count, const std::string &title);
    /// Gives all files names that begin so; the store hears of it with the next save.
    void rename(const std::string &prefix);
    std::size_t fileCount() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
