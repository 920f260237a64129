// SPDX-License-Identifier: MIT
#include "benchmarks/Rows.h"

#include "ZrXmlLib16/XmlDocument.h"
#include "benchmarks/ExpatFloor.h"
#include "benchmarks/JsonYardstick.h"

std::vector<Row> AllRows()
{
    using D = DocumentKind;
    return {
        {"xml-floor", D::Standard, Task::Floor, Form::Xml},
        {"xml-tree", D::Standard, Task::Tree, Form::Xml},
        {"xml-read", D::Standard, Task::Read, Form::Xml},
        {"xml-write", D::Standard, Task::Write, Form::Xml},
        {"json-read", D::Standard, Task::Read, Form::Json},
        {"json-write", D::Standard, Task::Write, Form::Json},
        {"json-rapidjson-read", D::Standard, Task::YardstickRead, Form::Json},
        {"json-rapidjson-write", D::Standard, Task::YardstickWrite, Form::Json},
        {"finf-read", D::Standard, Task::Read, Form::FastInfoset},
        {"finf-write", D::Standard, Task::Write, Form::FastInfoset},
        {"finf-compact-read", D::Standard, Task::Read, Form::CompactFastInfoset},
        {"finf-compact-write", D::Standard, Task::Write, Form::CompactFastInfoset},
        {"xml-floor-indented", D::Indented, Task::Floor, Form::Xml},
        {"xml-read-indented", D::Indented, Task::Read, Form::Xml},
        {"xml-write-indented", D::Indented, Task::Write, Form::Xml},
        {"small-floor", D::Small, Task::Floor, Form::Xml},
        {"small-read", D::Small, Task::Read, Form::Xml},
        {"small-write", D::Small, Task::Write, Form::Xml},
        {"small-json-read", D::Small, Task::Read, Form::Json},
        {"small-json-write", D::Small, Task::Write, Form::Json},
        {"small-finf-read", D::Small, Task::Read, Form::FastInfoset},
        {"small-finf-write", D::Small, Task::Write, Form::FastInfoset},
        {"xml-floor/32", D::Large, Task::Floor, Form::Xml},
        {"xml-read/32", D::Large, Task::Read, Form::Xml},
        {"xml-write/32", D::Large, Task::Write, Form::Xml},
        {"json-read/32", D::Large, Task::Read, Form::Json},
        {"json-write/32", D::Large, Task::Write, Form::Json},
        {"finf-read/32", D::Large, Task::Read, Form::FastInfoset},
        {"finf-write/32", D::Large, Task::Write, Form::FastInfoset},
        {"xml-floor-indented/32", D::LargeIndented, Task::Floor, Form::Xml},
        {"xml-read-indented/32", D::LargeIndented, Task::Read, Form::Xml},
    };
}

void PrepareRow(const Row& row, Sample& sample)
{
    switch (row.task) {
    case Task::Floor:
    case Task::Tree:
        sample.GetDocument();
        break;
    case Task::YardstickRead:
    case Task::YardstickWrite:
        ParseYardstick(sample.GetBytes(row.form));
        break;
    case Task::Read:
        sample.GetBytes(row.form);
        [[fallthrough]];
    case Task::Write:
        sample.GetObjects();
        break;
    }
}

void RunRow(const Row& row, Sample& sample)
{
    switch (row.task) {
    case Task::Floor:
        ParseOnly(sample.GetDocument().bytes);
        break;
    case Task::Tree: {
        const std::string& bytes = sample.GetDocument().bytes;
        ZrXmlLib16::CXmlDocument document;
        document.LoadXmlStream(BytesOf(bytes), bytes.size());
        break;
    }
    case Task::Read:
        sample.Read(row.form);
        break;
    case Task::Write:
        sample.Write(row.form);
        break;
    case Task::YardstickRead:
        ParseYardstick(sample.GetBytes(row.form));
        break;
    case Task::YardstickWrite:
        WriteYardstick();
        break;
    }
}
