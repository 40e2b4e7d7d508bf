// The small pieces gradewise-cli builds its output from: stations as typed, text made
// UTF-8, JSON and XML escaping, the drawings' scales and standard output.
#include <gtest/gtest.h>

#include <cmath>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

#include "cli/json_writer.h"
#include "cli/plot_scale.h"
#include "cli/standard_output.h"
#include "cli/station_input.h"
#include "cli/svg_writer.h"
#include "cli/text_output.h"

namespace gw::cli {
namespace {

TEST(PiecesTest, StationsAsTyped) {
    const std::string notAStation = " is not a station as WHOLE+PLUS";
    struct Case {
        const char* text;
        bool metric;
        double value;         // when it is a station
        std::string problem;  // when it is not
    } cases[] = {
        {"10+50", false, 1050, ""},
        {"-1+50", false, -150, ""},
        {"-0+25", false, -25, ""},
        {"1+999.9", true, 1999.9, ""},
        {"10+100", false, 0, "the plus part of '10+100' must be less than 100"},
        {"1+1000", true, 0, "the plus part of '1+1000' must be less than 1000"},
        {"x+5", false, 0, "'x+5'" + notAStation},
        {"1.5+0", false, 0, "'1.5+0'" + notAStation},
        {"10+-5", false, 0, "'10+-5'" + notAStation},
        {"10++5", false, 0, "'10++5'" + notAStation},
        {"10+5x", false, 0, "'10+5x'" + notAStation},
        {"10+", false, 0, "'10+'" + notAStation},
        {"+10", false, 0, "'+10'" + notAStation},
        {"1e307+0", false, 0, "'1e307+0'" + notAStation},
    };
    for (const Case& c : cases) {
        const StationReading r = ReadStation(c.text, c.metric);
        EXPECT_EQ(r.value.value_or(0), c.value) << c.text;
        EXPECT_EQ(r.value.has_value(), c.problem.empty()) << c.text;
        EXPECT_EQ(r.problem, c.problem) << c.text;
    }
}

// Valid UTF-8 passes; any other byte is taken as Latin-1.
TEST(PiecesTest, TextMadeUtf8) {
    const std::pair<std::string, std::string> cases[] = {
        {"a\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80", "a\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"},
        {"r\xE9sum\xE9", "r\xC3\xA9sum\xC3\xA9"},
        {"\xC3(", "\xC3\x83("},
        {"\xE2\x82", "\xC3\xA2\xC2\x82"},
        {"\xFF", "\xC3\xBF"},
    };
    for (const auto& [bytes, utf8] : cases) EXPECT_EQ(ToUtf8(bytes), utf8) << bytes;
}

TEST(PiecesTest, JsonIsIndentedAndEscaped) {
    JsonWriter j;
    j.BeginObject();
    j.Key("a\"b");
    j.String("q\"\\\n\r\t\x01\xE9");
    j.Key("n");
    j.BeginArray(true);
    j.Number("1");
    j.Null();
    j.EndArray();
    j.Key("e");
    j.BeginArray();
    j.EndArray();
    j.Key("o");
    j.BeginObject();
    j.Key("t");
    j.Bool(true);
    j.Key("f");
    j.Bool(false);
    j.EndObject();
    j.EndObject();
    EXPECT_EQ(j.Finish(),
              "{\n  \"a\\\"b\": \"q\\\"\\\\\\n\\r\\t\\u0001\xC3\xA9\",\n  \"n\": [1, null],\n  \"e\": [],\n"
              "  \"o\": {\n    \"t\": true,\n    \"f\": false\n  }\n}\n");
}

TEST(PiecesTest, SvgTextIsEscaped) {
    SvgWriter svg(10.004, 5);
    svg.Text(1.005, 2, "a&b<c>\"d'", "", 90);
    EXPECT_EQ(svg.Finish(),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" height=\"5\" viewBox=\"0 0 10 5\" "
              "font-family=\"Liberation Sans, Helvetica, Arial, sans-serif\">\n"
              "<text x=\"1\" y=\"2\" transform=\"rotate(90 1 2)\" >a&amp;b&lt;c&gt;&quot;d'</text>\n</svg>\n");
    EXPECT_TRUE(svg.AllFinite());
    svg.Num(NAN);
    EXPECT_FALSE(svg.AllFinite());
}

TEST(PiecesTest, DrawingScales) {
    const std::pair<double, double> steps[] = {{NiceStep(700, 7), 100}, {NiceStep(150, 10), 20},
                                               {NiceStep(24, 10), 2.5}, {NiceStep(45, 10), 5},
                                               {NiceStep(80, 10), 10},  {NiceStep(100.05, 1), 100}};
    for (const auto& [step, expected] : steps) EXPECT_EQ(step, expected);
    const std::pair<double, double> exaggerations[] = {
        {Exaggeration(0, 1, 100), 10}, {Exaggeration(10, 1, 100), 10},    {Exaggeration(10, 1, 99), 5},
        {Exaggeration(1, 1, 0.5), 1},  {Exaggeration(0.1, 1, 1e4), 1000}, {Exaggeration(1, 4, 100), 25},
    };
    for (const auto& [exaggeration, expected] : exaggerations) EXPECT_EQ(exaggeration, expected);
    EXPECT_EQ(TickStation(1000, false), "10+00");
    EXPECT_EQ(TickStation(1850, true), "1+850");
    EXPECT_EQ(TickStation(1012.5, false), "10+12.5");
    EXPECT_EQ(TickStation(999.9999999, false), "10+00");
}

// A descriptor left non-blocking is waited on, not given up on.
TEST(PiecesTest, StandardOutputWaitsForRoomOnANonBlockingPipe) {
    int fds[2];
    ASSERT_EQ(::pipe(fds), 0);
    ::fcntl(fds[1], F_SETFL, ::fcntl(fds[1], F_GETFL) | O_NONBLOCK);
    std::string received;
    std::thread reader([&] {
        char buffer[4096];
        for (ssize_t n; (n = ::read(fds[0], buffer, sizeof buffer)) > 0;) received.append(buffer, size_t(n));
    });
    const std::string text(300000, 'x');
    {
        StandardOutput out(fds[1]);
        out.Stream() << text;
        std::ostringstream err;
        EXPECT_TRUE(out.Finish(err));
        EXPECT_EQ(err.str(), "");
    }
    ::close(fds[1]);
    reader.join();
    ::close(fds[0]);
    EXPECT_EQ(received, text);
}

}  // namespace
}  // namespace gw::cli
