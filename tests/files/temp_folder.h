#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

namespace gw::test {

// A folder of its own for each test, removed afterwards.
class TempFolder {
public:
    TempFolder() {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() /
                 ("gw_" + std::to_string(::getpid()) + "_" + info->test_suite_name() + "_" + info->name());
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(m_path, ec);
    }
    std::string File(const std::string& name) const { return (m_path / name).string(); }
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

}  // namespace gw::test
