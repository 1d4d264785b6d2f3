#include "recorder.h"

#include "core/text.h"

namespace orvanta::test {

struct Recorder::Log {
    Texts operations;
    std::string refused;
    int uses = 0, failing = 0;
    int tables = 0, ranges = 0;

    void use() {
        if (++uses == failing) throw Failure(ErrorNumber::InvalidCall);
    }
    void keep(const std::string& operation) {
        if (operation == refused) throw Failure(ErrorNumber::InvalidCall);
        operations.push_back(operation);
    }
};

namespace {

class RecordedObject : public WordObject {
public:
    RecordedObject(std::shared_ptr<Recorder::Log> log, std::string name, WordObjectPtr behind)
        : m_log(std::move(log)), m_name(std::move(name)), m_behind(std::move(behind)) {}

    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        m_log->use();
        std::string name = expression(member, arguments);
        if (const std::string own = ownName(member); !own.empty()) {
            m_log->keep(own + " = " + name);
            name = own;
            m_log->tables += isTable(member);
            m_log->ranges += isRangeOfBody(member);
        }
        return std::make_shared<RecordedObject>(
            m_log, name, m_behind ? m_behind->get(member, unwrapped(arguments)) : nullptr);
    }

    void put(std::string_view member, const WordValue& value) override {
        m_log->use();
        m_log->keep(expression(member, {}) + " = " + shown(value));
        if (m_behind) m_behind->put(member, unwrapped({value}).front());
    }

    void call(std::string_view member, const WordArguments& arguments) override {
        m_log->use();
        m_log->keep(m_name + "." + std::string(member) + "(" + shown(arguments) + ")");
        if (m_behind) m_behind->call(member, unwrapped(arguments));
    }

private:
    static std::string shown(const WordValue& value) {
        if (const auto* object = std::get_if<WordObjectPtr>(&value))
            return dynamic_cast<const RecordedObject&>(**object).m_name;
        if (const auto* text = std::get_if<WordText>(&value))
            return '"' + replaceAll(*text, "\r\n", "\\r\\n") + '"';
        if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "true" : "false";
        return std::to_string(std::get<int>(value));
    }

    static std::string shown(const WordArguments& arguments) {
        std::string text;
        for (const WordValue& argument : arguments)
            text += (text.empty() ? "" : ", ") + shown(argument);
        return text;
    }

    static WordArguments unwrapped(WordArguments arguments) {
        for (WordValue& argument : arguments)
            if (const auto* object = std::get_if<WordObjectPtr>(&argument))
                argument = WordObjectPtr(dynamic_cast<const RecordedObject&>(**object).m_behind);
        return arguments;
    }

    std::string expression(std::string_view member, const WordArguments& arguments) const {
        const std::string list = arguments.empty() ? "" : "(" + shown(arguments) + ")";
        return member == "Item" ? m_name + list : m_name + "." + std::string(member) + list;
    }

    bool isTable(std::string_view member) const {
        return member == "Add" && m_name.ends_with(".Tables");
    }
    bool isRangeOfBody(std::string_view member) const {
        return member == "Range" &&
               (m_name == "Document" || m_name.starts_with("Document.Bookmarks("));
    }

    /// Empty for what is only on the way to another object.
    std::string ownName(std::string_view member) const {
        if (isTable(member)) return "Table " + std::to_string(m_log->tables + 1);
        if (isRangeOfBody(member)) return "Range " + std::to_string(m_log->ranges + 1);
        if (member == "Add") return "Document";
        return member == "Selection" ? "Selection" : "";
    }

    std::shared_ptr<Recorder::Log> m_log;
    std::string m_name;
    WordObjectPtr m_behind;
};

}  // namespace

Recorder::Recorder() : m_log(std::make_shared<Log>()) {}
Recorder::Recorder(WordProcessors& behind) : Recorder() { m_behind = &behind; }

WordObjectPtr Recorder::createApplication() {
    m_log->use();
    m_log->keep("Application = Word.Application");
    return std::make_shared<RecordedObject>(m_log, "Application",
                                            m_behind ? m_behind->createApplication() : nullptr);
}

const Texts& Recorder::operations() const { return m_log->operations; }
int Recorder::uses() const { return m_log->uses; }
void Recorder::failUse(int use) { m_log->failing = use; }
void Recorder::failOperation(const std::string& operation) { m_log->refused = operation; }

}  // namespace orvanta::test
