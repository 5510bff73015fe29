// The golden-vector runner: checks the numeric core against vector files.
//
//   golden_vectors [--dir DIR] [--type big|bigger] [--ops add,sub,...] [--show N]
//
// DIR holds big/ (Big<1,4>) and bigger/ (Big<8,32>) with <op>.vec files. Every file is
// run (or only those named by --ops, which must then exist and be fully handled); each
// prints "N passed, M failed" and its first failing lines. The exit status is 1 if any
// line failed.
#include <algorithm>
#include <dirent.h>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>

#include "handlers.h"

#ifndef GOLDEN_VECTOR_DIR
#define GOLDEN_VECTOR_DIR "vectors"
#endif

namespace {

struct Options {
    std::string dir = GOLDEN_VECTOR_DIR;
    std::vector<std::string> types = {"big", "bigger"};
    std::set<std::string> ops; // empty: every file
    std::size_t show = 3;
};

struct FileResult {
    std::size_t passed = 0, failed = 0, unhandled = 0;
    std::map<std::string, std::size_t> categories;
};

std::vector<std::string> ListVectorFiles(const std::string & dir)
{
    std::vector<std::string> names;
    if (DIR * d = opendir(dir.c_str())) {
        while (dirent * e = readdir(d)) {
            std::string n = e->d_name;
            if (n.size() > 4 && n.compare(n.size() - 4, 4, ".vec") == 0)
                names.push_back(n.substr(0, n.size() - 4));
        }
        closedir(d);
    }
    std::sort(names.begin(), names.end());
    return names;
}

template<class Big>
FileResult RunFile(const std::string & path, const std::string & label, std::size_t show)
{
    const golden::HandlerMap & handlers = golden::AllHandlers<Big>();
    FileResult r;
    std::ifstream in(path);
    std::string text;
    std::size_t number = 0;
    while (std::getline(in, text)) {
        ++number;
        golden::Line line;
        golden::Outcome outcome;
        try {
            if (!golden::ParseLine(text, line))
                continue;
            auto it = handlers.find(line.op);
            if (it == handlers.end()) {
                ++r.unhandled;
                continue;
            }
            outcome = it->second(line);
        } catch (const std::exception & e) {
            outcome.pass = false;
            outcome.detail = std::string("cannot run the line: ") + e.what();
        }
        if (!outcome.category.empty())
            ++r.categories[outcome.category];
        if (outcome.pass) {
            ++r.passed;
        } else {
            if (r.failed++ < show)
                std::cout << "  " << label << ":" << number << ": " << text.substr(0, 400) << "\n    "
                          << outcome.detail << "\n";
        }
    }
    return r;
}

template<class Big>
bool RunType(const Options & o, const std::string & type)
{
    std::string dir = o.dir + "/" + type;
    std::vector<std::string> files = ListVectorFiles(dir);
    bool ok = true;
    for (const std::string & op : o.ops) {
        if (std::find(files.begin(), files.end(), op) == files.end()) {
            std::cout << type << "/" << op << ".vec: missing in " << dir << "\n";
            ok = false;
        }
    }
    std::size_t total_passed = 0, total_failed = 0;
    for (const std::string & name : files) {
        if (!o.ops.empty() && !o.ops.count(name))
            continue;
        std::string label = type + "/" + name + ".vec";
        FileResult r = RunFile<Big>(dir + "/" + name + ".vec", label, o.show);
        if (r.passed + r.failed == 0 && o.ops.empty()) {
            std::cout << label << ": skipped (no handler in this runner)\n";
            continue;
        }
        std::cout << label << ": " << r.passed << " passed, " << r.failed << " failed";
        if (r.unhandled)
            std::cout << ", " << r.unhandled << " lines without a handler";
        for (const auto & c : r.categories)
            std::cout << "; " << c.first << ": " << c.second;
        std::cout << "\n";
        total_passed += r.passed;
        total_failed += r.failed;
        if (r.failed || (r.unhandled && !o.ops.empty()))
            ok = false;
    }
    std::cout << type << ": " << total_passed << " passed, " << total_failed << " failed ("
              << ttmath::UInt<1>::LibTypeStr() << ")\n";
    return ok;
}

bool ParseOptions(int argc, char ** argv, Options & o)
{
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        if (i + 1 >= argc) {
            std::cerr << "option " << a << " needs a value\n";
            return false;
        }
        std::string v = argv[++i];
        if (a == "--dir") {
            o.dir = v;
        } else if (a == "--type") {
            if (v != "big" && v != "bigger") {
                std::cerr << "--type is big or bigger\n";
                return false;
            }
            o.types = {v};
        } else if (a == "--ops") {
            std::stringstream ss(v);
            std::string op;
            while (std::getline(ss, op, ','))
                if (!op.empty())
                    o.ops.insert(op);
        } else if (a == "--show") {
            o.show = std::stoul(v);
        } else {
            std::cerr << "unknown option " << a << "\n";
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char ** argv)
{
    Options o;
    if (!ParseOptions(argc, argv, o)) {
        std::cerr << "usage: golden_vectors [--dir DIR] [--type big|bigger] [--ops a,b,...] [--show N]\n";
        return 2;
    }
    bool ok = true;
    for (const std::string & type : o.types) {
        if (type == "big")
            ok = RunType<ttmath::Big<1, 4>>(o, type) && ok;
        else
            ok = RunType<ttmath::Big<8, 32>>(o, type) && ok;
    }
    return ok ? 0 : 1;
}
