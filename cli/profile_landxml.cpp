#include "cli/profile_landxml.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <vector>

#include "cli/text_output.h"
#include "core/numbers.h"

#define GW_LANDXML_STR2(x) #x
#define GW_LANDXML_STR(x) GW_LANDXML_STR2(x)

namespace gw::cli {
namespace {

constexpr const char* kNamespace = "http://www.landxml.org/schema/LandXML-1.2";
// The Feature that carries what a curve file holds beyond its curve.
constexpr const char* kExtrasFeature = "gradewise-curve-file";

// An element's name without its namespace prefix.
std::string_view LocalName(const pugi::xml_node& node) {
    std::string_view name = node.name();
    const size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

class Reader {
public:
    explicit Reader(std::string_view bytes) : m_bytes(bytes) {
        for (size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] == '\n') m_lineEnds.push_back(static_cast<ptrdiff_t>(i));
        }
    }

    // Every PVI is named by its line, so this is a search, not a count.
    int Line(ptrdiff_t offset) const {
        return 1 +
               static_cast<int>(std::lower_bound(m_lineEnds.begin(), m_lineEnds.end(), offset) - m_lineEnds.begin());
    }
    std::string Where(const pugi::xml_node& node) const {
        return std::string(LocalName(node)) + " on line " + std::to_string(Line(node.offset_debug()));
    }

    LandXmlRead Read(const std::optional<std::string>& profileName);

private:
    bool Fail(std::string message) {
        m_error = std::move(message);
        return false;
    }
    bool Units(const pugi::xml_node& root, bool& metric);
    bool FindProfAlign(const pugi::xml_node& root, const std::optional<std::string>& name, pugi::xml_node& found);
    bool Number(const pugi::xml_node& node, const char* attribute, double& value);
    bool Point(const pugi::xml_node& node, PviInput& pvi);
    bool Extras(const pugi::xml_node& feature, ProfileDocument& doc);

    std::string_view m_bytes;
    std::vector<ptrdiff_t> m_lineEnds;         // offsets of the line feeds
    std::map<size_t, std::string> m_extrasAt;  // where the extras of each PVI were read
    std::string m_error;
};

bool Reader::Units(const pugi::xml_node& root, bool& metric) {
    pugi::xml_node units;
    for (pugi::xml_node n : root.children()) {
        if (LocalName(n) == "Units") units = n;
    }
    if (!units) return Fail("The file has no Units element, so its feet cannot be told from metres.");
    for (pugi::xml_node system : units.children()) {
        const std::string_view kind = LocalName(system);
        if (kind != "Imperial" && kind != "Metric") continue;
        metric = kind == "Metric";
        const std::string linear = system.attribute("linearUnit").value();
        const bool feet = linear == "foot" || linear == "USSurveyFoot";
        if (metric ? linear != "meter" : !feet) {
            return Fail(Where(system) + ": a linear unit of '" + linear +
                        "' is not one Gradewise works in (foot, USSurveyFoot or meter).");
        }
        // The schema's default elevation unit is the metre even in Imperial files, yet
        // such files commonly hold their elevations in feet without saying so: without
        // the attribute the elevations take the linear unit; a different unit stated
        // is refused rather than converted behind the user's back.
        const pugi::xml_attribute elevation = system.attribute("elevationUnit");
        if (elevation && elevation.value() != std::string(metric ? "meter" : "feet")) {
            return Fail(Where(system) + ": elevations in '" + elevation.value() + "' with stations in '" + linear +
                        "'; both must be feet or both metres.");
        }
        return true;
    }
    return Fail(Where(units) + " names neither Imperial nor Metric units.");
}

bool Reader::FindProfAlign(const pugi::xml_node& root, const std::optional<std::string>& name, pugi::xml_node& found) {
    std::vector<pugi::xml_node> all;
    struct Walker : pugi::xml_tree_walker {
        std::vector<pugi::xml_node>* out;
        bool for_each(pugi::xml_node& node) override {
            if (LocalName(node) == "ProfAlign") out->push_back(node);
            return true;
        }
    } walker;
    walker.out = &all;
    pugi::xml_node top = root;
    top.traverse(walker);
    std::string names;
    for (const pugi::xml_node& n : all) {
        names += (names.empty() ? "'" : ", '") + std::string(n.attribute("name").value()) + "'";
        if (name && *name == n.attribute("name").value()) found = n;
    }
    if (name && !found) {
        return Fail("The file has no ProfAlign named '" + *name + "'" +
                    (all.empty() ? "." : "; it has " + names + "."));
    }
    if (!name && all.size() != 1) {
        if (all.empty()) return Fail("The file has no profile: no ProfAlign element.");
        return Fail("The file has " + std::to_string(all.size()) + " profiles (ProfAlign " + names +
                    "); choose one by its name.");
    }
    if (!name) found = all.front();
    for (pugi::xml_node n = found.parent(); n; n = n.parent()) {
        if (LocalName(n) != "Alignment") continue;
        for (pugi::xml_node child : n.children()) {
            if (LocalName(child) == "StaEquation") {
                return Fail(Where(child) +
                            ": station equations are not supported; the profile's stations would be "
                            "read wrongly past it.");
            }
        }
    }
    return true;
}

bool Reader::Number(const pugi::xml_node& node, const char* attribute, double& value) {
    const pugi::xml_attribute a = node.attribute(attribute);
    if (!a) return Fail(Where(node) + " has no " + attribute + ".");
    if (!IsNumericText(a.value())) {
        return Fail(Where(node) + ": " + attribute + " '" + a.value() + "' is not a number.");
    }
    value = ReadNumber(a.value());
    return true;
}

bool Reader::Point(const pugi::xml_node& node, PviInput& pvi) {
    const std::string text = node.text().get();
    std::vector<std::string> words;
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && std::strchr(" \t\r\n", text[i])) ++i;
        const size_t start = i;
        while (i < text.size() && !std::strchr(" \t\r\n", text[i])) ++i;
        if (i > start) words.push_back(text.substr(start, i - start));
    }
    if (words.size() != 2 || !IsNumericText(words[0]) || !IsNumericText(words[1])) {
        return Fail(Where(node) + ": expected 'station elevation', found '" + text + "'.");
    }
    pvi.station = ReadNumber(words[0]);
    pvi.elevation = ReadNumber(words[1]);
    pvi.source = Where(node);
    return true;
}

// What a curve file held beyond its curve, for the PVI its "pvi" property names.
bool Reader::Extras(const pugi::xml_node& feature, ProfileDocument& doc) {
    CurveFileExtras extras;
    std::string pvi;
    for (pugi::xml_node p : feature.children()) {
        if (LocalName(p) != "Property") continue;
        const std::string label = p.attribute("label").value();
        const std::string value = p.attribute("value").value();
        // "row 3 whole", "row 3 plus": the texts of elevation row 3.
        const std::string_view rest = std::string_view(label).substr(std::min<size_t>(4, label.size()));
        const std::string rowText(rest.substr(0, rest.find(' ')));
        const std::string_view part = rest.substr(std::min(rowText.size() + 1, rest.size()));
        const double row = IsNumericText(rowText) ? ReadNumber(rowText) : 0;
        const bool rowLabel = label.rfind("row ", 0) == 0 && row >= 1 && row <= kRowCount && row == std::trunc(row) &&
                              (part == "whole" || part == "plus");
        if (label == "pvi") {
            pvi = value;
        } else if (label == "mode") {
            extras.endsMode = value == "PVC and PVT";
        } else if (label == "vertical offset") {
            extras.verticalOffset = value;
        } else if (label == "horizontal offset") {
            extras.horizontalOffset = value;
        } else if (label == "cross slope") {
            extras.crossSlope = value;
        } else if (rowLabel) {
            auto& texts = extras.rows[static_cast<size_t>(row) - 1];
            (part == "whole" ? texts.first : texts.second) = value;
        }
    }
    // A PVI's number, 1 or more; whether the profile has that PVI is seen at its end.
    const double number = ReadNumber(pvi);
    if (!IsNumericText(pvi) || !(number >= 1 && number <= 1e9) || number != std::trunc(number)) {
        return Fail(Where(feature) + ": its pvi '" + pvi + "' is not the number of a PVI.");
    }
    doc.extras[static_cast<size_t>(number) - 1] = extras;
    m_extrasAt[static_cast<size_t>(number) - 1] = Where(feature);
    return true;
}

LandXmlRead Reader::Read(const std::optional<std::string>& profileName) {
    LandXmlRead out;
    pugi::xml_document xml;
    const pugi::xml_parse_result parsed = xml.load_buffer(m_bytes.data(), m_bytes.size());
    if (!parsed) {
        out.error = "Line " + std::to_string(Line(parsed.offset)) + ": " + parsed.description() + ".";
        return out;
    }
    const pugi::xml_node root = xml.document_element();
    if (LocalName(root) != "LandXML") {
        out.error = "The file is not LandXML: its root element is " + std::string(LocalName(root)) + ".";
        return out;
    }
    ProfileDocument doc;
    pugi::xml_node profAlign;
    if (!Units(root, doc.input.metric) || !FindProfAlign(root, profileName, profAlign)) {
        out.error = m_error;
        return out;
    }
    doc.name = profAlign.attribute("name").value();
    for (pugi::xml_node n : profAlign.children()) {
        const std::string_view kind = LocalName(n);
        PviInput pvi;
        CurveInput& curve = pvi.curve;
        bool ok = true;
        if (kind == "PVI") {
            ok = Point(n, pvi);
        } else if (kind == "ParaCurve") {
            curve.kind = CurveInput::Kind::Length;
            ok = Number(n, "length", curve.length) && Point(n, pvi);
        } else if (kind == "UnsymParaCurve") {
            curve.kind = CurveInput::Kind::Unsymmetrical;
            ok = Number(n, "lengthIn", curve.lengthIn) && Number(n, "lengthOut", curve.lengthOut) && Point(n, pvi);
        } else if (kind == "CircCurve") {
            out.error = Where(n) +
                        ": circular vertical curves are not supported; Gradewise works with parabolic "
                        "curves (ParaCurve, UnsymParaCurve).";
            return out;
        } else {
            if (kind == "Feature" && std::string(n.attribute("name").value()) == kExtrasFeature && !Extras(n, doc)) {
                out.error = m_error;
                return out;
            }
            continue;
        }
        if (!ok) {
            out.error = m_error;
            return out;
        }
        // A curve of no length is a bare grade break.
        if (curve.kind == CurveInput::Kind::Length && curve.length == 0) curve.kind = CurveInput::Kind::None;
        doc.input.pvis.push_back(pvi);
    }
    for (const auto& [index, where] : m_extrasAt) {
        if (index >= doc.input.pvis.size()) {
            out.error = where + ": its pvi " + std::to_string(index + 1) +
                        " is past the last PVI of the profile, PVI " + std::to_string(doc.input.pvis.size()) + ".";
            return out;
        }
    }
    out.document = std::move(doc);
    return out;
}

struct StringWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

void Attribute(pugi::xml_node node, const char* name, const std::string& value) {
    node.append_attribute(name).set_value(value.c_str());
}

void AddExtras(pugi::xml_node profAlign, size_t pvi, const CurveFileExtras& e) {
    pugi::xml_node feature = profAlign.append_child("Feature");
    Attribute(feature, "name", kExtrasFeature);
    const auto property = [&](const std::string& label, const std::string& value) {
        pugi::xml_node p = feature.append_child("Property");
        Attribute(p, "label", label);
        Attribute(p, "value", ToUtf8(value));
    };
    property("pvi", std::to_string(pvi + 1));
    property("mode", e.endsMode ? "PVC and PVT" : "PVI");
    if (!e.verticalOffset.empty()) property("vertical offset", e.verticalOffset);
    if (!e.horizontalOffset.empty()) property("horizontal offset", e.horizontalOffset);
    if (!e.crossSlope.empty()) property("cross slope", e.crossSlope);
    for (int i = 0; i < kRowCount; ++i) {
        const auto& [whole, plus] = e.rows[static_cast<size_t>(i)];
        if (!whole.empty()) property("row " + std::to_string(i + 1) + " whole", whole);
        if (!plus.empty()) property("row " + std::to_string(i + 1) + " plus", plus);
    }
}

}  // namespace

LandXmlRead ReadLandXml(std::string_view bytes, const std::optional<std::string>& profileName) {
    return Reader(bytes).Read(profileName);
}

std::string LandXmlText(const ProfileDocument& document, const Profile& profile, const std::string& date,
                        const std::string& time) {
    pugi::xml_document xml;
    pugi::xml_node declaration = xml.append_child(pugi::node_declaration);
    Attribute(declaration, "version", "1.0");
    Attribute(declaration, "encoding", "UTF-8");
    pugi::xml_node root = xml.append_child("LandXML");
    Attribute(root, "xmlns", kNamespace);
    Attribute(root, "xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    Attribute(root, "xsi:schemaLocation", std::string(kNamespace) + " " + kNamespace + "/LandXML-1.2.xsd");
    Attribute(root, "version", "1.2");
    Attribute(root, "date", date);
    Attribute(root, "time", time);

    // Every unit attribute the schema requires, and the elevation unit, whose default
    // would otherwise be the metre.
    pugi::xml_node units = root.append_child("Units").append_child(profile.metric() ? "Metric" : "Imperial");
    if (profile.metric()) {
        for (auto [name, value] : {std::pair{"areaUnit", "squareMeter"},
                                   {"linearUnit", "meter"},
                                   {"volumeUnit", "cubicMeter"},
                                   {"temperatureUnit", "celsius"},
                                   {"pressureUnit", "milliBars"},
                                   {"elevationUnit", "meter"}}) {
            Attribute(units, name, value);
        }
    } else {
        for (auto [name, value] : {std::pair{"areaUnit", "squareFoot"},
                                   {"linearUnit", "foot"},
                                   {"volumeUnit", "cubicYard"},
                                   {"temperatureUnit", "fahrenheit"},
                                   {"pressureUnit", "inHG"},
                                   {"elevationUnit", "feet"}}) {
            Attribute(units, name, value);
        }
    }
    pugi::xml_node application = root.append_child("Application");
    Attribute(application, "name", "Gradewise");
    Attribute(
        application, "version",
        GW_LANDXML_STR(GW_VERSION_MAJOR) "." GW_LANDXML_STR(GW_VERSION_MINOR) "." GW_LANDXML_STR(GW_VERSION_REVISION));

    const std::string name = ToUtf8(document.name.empty() ? "Profile" : document.name);
    pugi::xml_node alignment = root.append_child("Alignments").append_child("Alignment");
    Attribute(alignment, "name", name);
    Attribute(alignment, "length", PlainNumberText(profile.end() - profile.begin()));
    Attribute(alignment, "staStart", PlainNumberText(profile.begin()));
    pugi::xml_node profileNode = alignment.append_child("Profile");
    Attribute(profileNode, "name", name);
    pugi::xml_node profAlign = profileNode.append_child("ProfAlign");
    Attribute(profAlign, "name", name);

    for (const ProfilePvi& pvi : profile.pvis()) {
        pugi::xml_node node;
        if (!pvi.curve) {
            node = profAlign.append_child("PVI");
        } else if (pvi.curve->symmetric()) {
            node = profAlign.append_child("ParaCurve");
            Attribute(node, "length", PlainNumberText(pvi.curve->length()));
        } else {
            node = profAlign.append_child("UnsymParaCurve");
            Attribute(node, "lengthIn", PlainNumberText(pvi.curve->lengthIn()));
            Attribute(node, "lengthOut", PlainNumberText(pvi.curve->lengthOut()));
        }
        node.text().set((PlainNumberText(pvi.station) + " " + PlainNumberText(pvi.elevation)).c_str());
    }
    for (const auto& [pvi, extras] : document.extras) AddExtras(profAlign, pvi, extras);

    StringWriter out;
    xml.save(out, "  ", pugi::format_default, pugi::encoding_utf8);
    return out.text;
}

}  // namespace gw::cli
