#include "Report.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace zxhost {
namespace {

using Json = nlohmann::ordered_json;

constexpr char kDataRecord[] = "ZXADLG_DataOptions";

void PrintChanges(std::ostream& out, const char* record, const std::vector<FieldValue>& values) {
    out << "changed in " << record << ":\n";
    bool any = false;
    for (const FieldValue& value : values) {
        if (!value.changed) continue;
        any = true;
        out << "  " << value.name << ": " << value.before << " -> " << value.after << "\n";
    }
    if (!any) out << "  nothing\n";
}

void PrintMessage(std::ostream& out, const Message& message) {
    out << "message: " << message.title << ": ";
    for (char c : message.text) {
        if (c == '\n') {
            out << "\\n";
        } else if (c != '\r') {
            out << c;
        }
    }
    for (const std::string& button : message.buttons) out << " [" << button << "]";
    out << "\n";
}

void PrintStore(std::ostream& out, const Settings& store) {
    const std::string text = FormatSettings(store);
    out << "store:\n";
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = text.find('\n', at);
        if (end > at) out << "  " << text.substr(at, end - at) << "\n";
        at = end + 1;
    }
    if (text.empty()) out << "  empty\n";
}

Json Changes(const std::vector<FieldValue>& values) {
    Json changes = Json::object();
    for (const FieldValue& value : values) {
        if (value.changed) changes[value.name] = {{"before", value.before}, {"after", value.after}};
    }
    return changes;
}

void Print(const Json& json, std::ostream& out) {
    out << json.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
    out.flush();
}

}  // namespace

void WriteText(const Report& report, std::ostream& out) {
    if (!report.data.empty()) out << "data: " << report.data << "\n";
    for (const std::string& note : report.notes) out << "note: " << note << "\n";
    for (const Message& message : report.messages) PrintMessage(out, message);
    out << "result: " << report.result << " (" << DescribeResult(report.result) << ")\n";
    PrintChanges(out, report.analysis->record, report.options);
    PrintChanges(out, kDataRecord, report.dataSelection);
    PrintStore(out, report.store);
    if (report.steps > 0) {
        out << "script: went through, " << report.steps
            << (report.steps == 1 ? " step\n" : " steps\n");
    }
    out.flush();
}

void WriteJson(const Report& report, std::ostream& out) {
    Json json;
    json["code"] = report.scriptError.empty() ? 0 : 1;
    if (!report.scriptError.empty()) json["error"] = report.scriptError;
    json["data"] = report.data;
    json["notes"] = report.notes;
    json["messages"] = Json::array();
    for (const Message& message : report.messages) {
        json["messages"].push_back(
            {{"title", message.title}, {"text", message.text}, {"buttons", message.buttons}});
    }
    json["analysis"] = report.analysis->name;
    json["result"] = report.result;
    json["changed"][report.analysis->record] = Changes(report.options);
    json["changed"][kDataRecord] = Changes(report.dataSelection);
    json["store"] = report.store;
    json["steps"] = report.steps;
    Print(json, out);
}

void WriteJsonError(int code, const std::string& error, std::ostream& out) {
    Print({{"code", code}, {"error", error}}, out);
}

void ListAnalyses(bool json, std::ostream& out) {
    const ZXADLG_DlgParams usual = DefaultParams();
    if (json) {
        Json all;
        for (const Analysis& analysis : kAnalyses) {
            all["analyses"].push_back({{"name", analysis.name},
                                       {"title", analysis.title},
                                       {"record", analysis.record},
                                       {"size", analysis.size}});
        }
        for (const ParamName& param : kParamNames) {
            all["parameters"].push_back(
                {{"name", param.name}, {"value", usual.*param.byte}, {"meaning", param.meaning}});
        }
        Print(all, out);
        return;
    }
    out << "analyses:\n";
    for (const Analysis& analysis : kAnalyses)
        out << "  " << analysis.name << "  " << analysis.title << " (" << analysis.record << ", "
            << analysis.size << " bytes)\n";
    out << "parameters, with what the host sets:\n";
    for (const ParamName& param : kParamNames)
        out << "  " << param.name << "=" << int(usual.*param.byte) << "  " << param.meaning << "\n";
}

void ListFields(const Analysis& analysis, bool json, std::ostream& out) {
    const ZXADLG_DataOptions data = DefaultData();
    const struct {
        const char* record;
        const void* values;
    } kRecords[] = {{analysis.record, analysis.defaults}, {kDataRecord, &data}};
    Json all;
    for (const auto& [record, values] : kRecords) {
        if (!json) out << record << ":\n";
        for (const FieldLine& line : DescribeFields(record, values)) {
            if (json) {
                all[record].push_back(
                    {{"name", line.name}, {"value", line.value}, {"limits", line.limits}});
            } else {
                out << "  " << line.name << "=" << line.value << "  " << line.limits << "\n";
            }
        }
    }
    if (json) Print(all, out);
}

}  // namespace zxhost
