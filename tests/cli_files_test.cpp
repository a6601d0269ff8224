// tamrel generate never leaves a partial transfer file: not when the disk
// fills (here: a file-size limit), not when the run is interrupted, not when
// the job is too large; an existing file is replaced only by a complete one.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <nlohmann/json.hpp>

#include "test_support.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

class GenerateFiles : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = tamrel::testing::fresh_folder("files");
        json job = {{"class", "clsGenMeldung"},
                    {"strBNRAb", tamrel::testing::kSenderBnr},
                    {"strBNREm", tamrel::testing::kReceiverBnr},
                    {"strFileNr", "1"},
                    {"strFirma", "F"},
                    {"datDate", "2024-03-01T10:11:12"},
                    {"reports_file", "reports.ndjson"}};
        std::ofstream(dir_ / "job.json") << job.dump();
        std::ofstream(dir_ / "out.txt") << "previous content";
    }
    void TearDown() override { fs::remove_all(dir_); }

    // Starts tamrel generate on the job; `limit` bytes is the largest file
    // it may write (0: no limit).
    pid_t start(rlim_t limit = 0) const {
        const std::string job = (dir_ / "job.json").string(), out = (dir_ / "out.txt").string();
        pid_t pid = fork();
        if (pid == 0) {
            if (limit) {
                rlimit r{limit, limit};
                setrlimit(RLIMIT_FSIZE, &r);
            }
            int null = ::open("/dev/null", O_WRONLY);
            dup2(null, STDERR_FILENO);
            execl(TAMREL_EXE, TAMREL_EXE, "generate", job.c_str(), "-o", out.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
        return pid;
    }
    static int wait_for(pid_t pid) {
        int status = 0;
        waitpid(pid, &status, 0);
        return status;
    }

    // Only the job, the reports and the untouched previous output remain.
    void expect_untouched() const {
        std::ifstream in(dir_ / "out.txt");
        std::stringstream s;
        s << in.rdbuf();
        EXPECT_EQ(s.str(), "previous content");
        for (const auto& e : fs::directory_iterator(dir_))
            EXPECT_EQ(e.path().filename().string().find(".tamrel-"), std::string::npos) << e.path();
    }

    fs::path dir_;
};

const std::string kReport =
    R"({"Meldegrund":"62","Meldungsart":1,"Vorgang":{"Aktenzeichen":"Muster","Arbeitgeber":{"Betriebsnummer":"98765432"}},)"
    R"("Empfaenger":{"Betriebsnummer":"12345671"}})";

TEST_F(GenerateFiles, AFullDiskLeavesTheOldFileAndNoPartialOne) {
    std::ofstream reports(dir_ / "reports.ndjson");
    for (int i = 0; i < 2000; ++i) reports << kReport << '\n';
    reports.close();
    const int status = wait_for(start(64 * 1024));
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 4);
    expect_untouched();
}

TEST_F(GenerateFiles, AnInterruptedRunLeavesTheOldFileAndNoPartialOne) {
    // The reports come through a pipe that stays open: the run is still
    // writing when it is terminated.
    ASSERT_EQ(mkfifo((dir_ / "reports.ndjson").c_str(), 0600), 0);
    const pid_t pid = start();
    const int fifo = ::open((dir_ / "reports.ndjson").c_str(), O_WRONLY);
    ASSERT_GE(fifo, 0);
    const std::string line = kReport + "\n";
    ASSERT_EQ(::write(fifo, line.data(), line.size()), static_cast<ssize_t>(line.size()));
    auto temp_exists = [&] {
        for (const auto& e : fs::directory_iterator(dir_))
            if (e.path().filename().string().find(".tamrel-") != std::string::npos) return true;
        return false;
    };
    for (int i = 0; i < 500 && !temp_exists(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    ASSERT_TRUE(temp_exists());
    kill(pid, SIGTERM);
    const int status = wait_for(pid);
    ::close(fifo);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    expect_untouched();
}

TEST_F(GenerateFiles, AJobTooLargeIsRefusedBeforeAnythingIsWritten) {
    json job = {{"class", "clsGenMeldung"},
                {"strBNRAb", tamrel::testing::kSenderBnr},
                {"strBNREm", tamrel::testing::kReceiverBnr},
                {"strFileNr", "1"},
                {"strFirma", "F"},
                {"reports", json::array()}};
    json report = json::parse(kReport);
    report["Vorgang"]["Aktenzeichen"] = std::string(1 << 20, 'M');
    for (int i = 0; i < 17; ++i) job["reports"].push_back(report);
    std::ofstream(dir_ / "job.json") << job.dump();
    EXPECT_EQ(WEXITSTATUS(wait_for(start())), 2);
    expect_untouched();
}

}  // namespace
