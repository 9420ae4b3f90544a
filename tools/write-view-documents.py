#!/usr/bin/env python3
"""Writes the 28 prepared view documents into resources/views/{appointment,task}/.

The documents are resources of the add-in, compiled in byte for byte: 8-bit
text, CRLF line ends, tab indentation. This script holds what each view shows
(columns, filter, grouping, order) and writes the files from it; edit the
tables here and run it again rather than editing the files by hand.

    tools/write-view-documents.py            # rewrites the 28 files
"""
import os
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources", "views")

HOST = "http://schemas.microsoft.com/"
USER = HOST + "mapi/string/{00020329-0000-0000-C000-000000000046}/"
TASK_ID = HOST + "mapi/id/{00062003-0000-0000-C000-000000000046}/"
APPT_ID = HOST + "mapi/id/{00062002-0000-0000-C000-000000000046}/"
FORMAT_A = "M/d/yyyy||h:mm tt"
FORMAT_B = "MMMM d, yyyy||h:mm tt"
VIEWSTYLE = ("table-layout:fixed;width:100%;font-family:Segoe UI;font-style:normal;"
             "font-weight:normal;font-size:8pt;color:Black;font-charset:0")
LEFT = "padding-left:3px;;text-align:left"
CENTER = "padding-left:3px;;text-align:center"


def user(name, kind, width, editable=0, **extra):
    return dict(prop=USER + name, type=kind, width=width, editable=editable, user=True, **extra)


# The column dictionary: heading -> fields, in the order they are written.
COLUMNS = {
    "HREF": dict(name="HREF", prop="DAV:href", checkbox=1),
    "Icon": dict(prop=HOST + "mapi/proptag/0x0fff0102", bitmap=1, width=18, editable=0),
    "Attachment": dict(prop="urn:schemas:httpmail:hasattachment", type="boolean",
                       format="boolicon", bitmap=1, width=18, editable=0, displayformat=3),
    "Priority": dict(prop="urn:schemas:httpmail:importance", type="i4", bitmap=1, width=18,
                     editable=1),
    "ID": user("ReportedID", "string", 64),
    "Subject": dict(prop="urn:schemas:httpmail:subject", type="string", width=240, editable=1),
    "Project": user("ProjectValue", "string", 110),
    "Activity": user("ActivityValue", "string", 110),
    "Location": dict(prop="urn:schemas:calendar:location", type="string", width=120, editable=1),
    "Start": dict(prop="urn:schemas:calendar:dtstart", type="datetime", width=120, editable=1,
                  format=FORMAT_A, displayformat=2, bestfitdate=0),
    "End": dict(prop="urn:schemas:calendar:dtend", type="datetime", width=120, editable=1,
                format=FORMAT_A, displayformat=2, bestfitdate=0),
    "Reported Date": user("ReportedDate", "datetime", 120, format=FORMAT_A, displayformat=2,
                          bestfitdate=0),
    "Reported By": user("ReportedBy", "string", 100),
    "Recurrence": dict(prop=APPT_ID + "82310003", type="i4", width=80, editable=1),
    "Categories": dict(prop="urn:schemas-microsoft-com:office:office#Keywords", width=110,
                       sortable=0, editable=1),
    "Due By": dict(prop="urn:schemas:calendar:replytime", type="datetime", width=120,
                   format=FORMAT_B, bestfitdate=0, editable=0),
    "Status": dict(prop=TASK_ID + "81010003", type="i4", width=90, editable=1),
    "Due Date": dict(prop=TASK_ID + "81050040", type="datetime", width=90, format="M/d/yy",
                     displayformat=12, bestfitdate=0, editable=1),
    "% Complete": dict(prop=TASK_ID + "81020005", type="float", width=70, format="#,#.00",
                       displayformat=3, editable=1),
    "Flag Status": dict(prop=HOST + "mapi/proptag/0x10900003", type="i4", bitmap=1, width=18,
                        editable=1),
}
NARROW = {"Icon", "Attachment", "Priority", "Flag Status"}
COLUMN_ORDER = ["name", "heading", "prop", "type", "format", "bitmap", "checkbox", "width",
                "style", "sortable", "editable", "displayformat", "bestfitdate", "userheading"]

# Sort keys: heading -> (prop, type, is a user property).
KEYS = {heading: (c["prop"], c.get("type", "string"), c.get("user", False))
        for heading, c in COLUMNS.items() if heading != "HREF"}
KEYS["ReportedIDHidden"] = (USER + "ReportedIDHidden", "string", True)
KEYS["Reported"] = (USER + "Reported", "boolean", True)
KEYS["Reported Date (text)"] = (USER + "Reported%20Date", "string", True)


def dasl(text):
    """A filter as the tables write it, each user property in its namespace and in &quot;."""
    for name in ["Reported%20Date", "ReportedIDHidden", "ReportedID", "Reported", "ProjectValue",
                 "ActivityValue"]:
        marker = "{" + name + "}"
        text = text.replace(marker, "&quot;" + USER + name + "&quot;")
    return text


REPORTED_DATE_SET = dasl("NOT({Reported%20Date} IS NULL)")
NO_PROJECT = dasl("{ProjectValue} IS NULL")
NO_ACTIVITY = dasl("{ActivityValue} IS NULL")
NO_BOTH = dasl("({ProjectValue} IS NULL AND {ActivityValue} IS NULL)")
UNREPORTED = dasl("{ReportedID} IS NULL")
REPORTED_APPT = dasl("{Reported} = 1")
REPORTED_TASK = dasl("NOT({ReportedID} IS NULL)")

RECURRENCE_START_END = [("Recurrence", "asc"), ("Start", "asc"), ("End", "asc")]


def table(name, viewname, viewtime, columns, filter=None, groupby=(), orderby=(),
          persistgroups=True, previewpane=True, editable=(), overrides=None, tail=""):
    return dict(kind="table", name=name, viewname=viewname, viewtime=viewtime, columns=columns,
                filter=filter, groupby=list(groupby), orderby=list(orderby),
                persistgroups=persistgroups, previewpane=previewpane, editable=set(editable),
                overrides=overrides or {}, tail=tail)


def calendar(name, viewname, viewtime, filter, empty_styles=False):
    return dict(kind="calendar", name=name, viewname=viewname, viewtime=viewtime, filter=filter,
                empty_styles=empty_styles)


APPOINTMENT = [
    table("REPORTED_ID", "Reported ID", 215303711,
          ["ID", "Subject", "Project", "Activity", "Start", "End", "Categories", "Reported Date"],
          orderby=[("ReportedIDHidden", "desc"), ("Start", "asc"), ("End", "asc")],
          persistgroups=False),
    table("REPORTED_STATE", "Reported State", 215303722,
          ["ID", "Subject", "Project", "Activity", "Location", "Start", "End", "Categories",
           "Reported Date"],
          groupby=[("Reported", "desc")], orderby=RECURRENCE_START_END),
    table("PROJECT_AND_ACTIVITY", "Project and Activity", 215303733,
          ["ID", "Subject", "Project", "Activity", "Start", "End", "Recurrence", "Categories",
           "Reported Date"],
          groupby=[("Project", "asc"), ("Activity", "asc")], orderby=RECURRENCE_START_END),
    table("PROJECT", "Project", 215303750,
          ["ID", "Subject", "Project", "Activity", "Location", "Start", "End", "Reported Date",
           "Recurrence", "Categories"],
          groupby=[("Project", "asc")], orderby=RECURRENCE_START_END),
    table("ACTIVITY", "Activity", 215303761,
          ["ID", "Subject", "Project", "Activity", "Location", "Start", "End", "Reported Date",
           "Recurrence", "Categories"],
          groupby=[("Activity", "asc")], orderby=RECURRENCE_START_END),
    table("REPORTED_DATE_(FILTERED)", "Reported Date (Filtered)", 215303772,
          ["ID", "Subject", "Project", "Activity", "Location", "Start", "End", "Recurrence",
           "Categories"],
          filter=REPORTED_DATE_SET, groupby=[("Reported Date (text)", "asc")],
          orderby=RECURRENCE_START_END,
          # This view's Activity column names a property nothing writes: it stays blank.
          overrides={"Activity": dict(prop=USER + "TaskValue")}),
    table("DUE_DATE", "Due Date", 215303783,
          ["ID", "Subject", "Project", "Activity", "Start", "End", "Categories", "Reported Date",
           "Due By"],
          groupby=[("Due By", "asc")],
          orderby=[("Recurrence", "asc"), ("Start", "asc"), ("End", "desc")],
          editable=["ID", "Project", "Activity", "Reported Date"]),
    table("ITEMS_WITHOUT_PROJECT_(FILTERED)", "Items without Project (Filtered)", 215303794,
          ["Subject", "Location", "Start", "End", "Recurrence", "Categories"],
          filter=NO_PROJECT, orderby=RECURRENCE_START_END, persistgroups=False),
    table("ITEMS_WITHOUT_ACTIVITY_(FILTERED)", "Items without Activity (Filtered)", 215303805,
          ["Subject", "Project", "Location", "Start", "End", "Recurrence", "Categories"],
          filter=NO_ACTIVITY, orderby=RECURRENCE_START_END, persistgroups=False),
    table("ITEMS_WITHOUT_PROJECT_AND_ACTIVITY_(FILTERED)",
          "Items Without Project and Activity (Filtered)", 215303816,
          ["Subject", "Location", "Start", "End", "Recurrence", "Categories"],
          filter=NO_BOTH, orderby=RECURRENCE_START_END, persistgroups=False),
    table("REPORTED_ITEMS_(FILTERED)", "Reported Items (Filtered)", 215303827,
          ["ID", "Subject", "Project", "Activity", "Start", "End", "Categories", "Reported Date",
           "Reported By"],
          filter=REPORTED_APPT, groupby=[("Project", "asc")], orderby=RECURRENCE_START_END),
    table("UNREPORTED_ITEMS_(FILTERED)", "Unreported Items (Filtered)", 215303838,
          ["Subject", "Project", "Activity", "Location", "Start", "End", "Recurrence",
           "Categories"],
          filter=UNREPORTED, groupby=[("Project", "asc")], orderby=RECURRENCE_START_END),
    calendar("CALENDAR_VIEW_OF_REPORTED_ITEMS_(FILTERED)",
             "Calendar view of Reported Items (Filtered)", 215303849, REPORTED_APPT),
    calendar("CALENDAR_VIEW_OF_UNREPORTED_ITEMS_(FILTERED)",
             "Calendar view of Unreported Items (Filtered)", 215303860, UNREPORTED),
]

TASK = [
    table("REPORTED_ID", "Report ID", 215304011,
          ["ID", "Subject", "Project", "Activity", "Status", "Due Date", "Categories",
           "Flag Status"],
          orderby=[("ReportedIDHidden", "asc")], persistgroups=False),
    table("REPORTED_STATE", "Reported State", 215304022,
          ["ID", "Subject", "Project", "Activity", "Due Date", "Categories", "Reported Date",
           "Reported By", "Flag Status"],
          groupby=[("Reported", "desc")], orderby=[("Reported Date", "asc")]),
    table("PROJECT_AND_ACTIVITY", "Project and Activity", 215304033,
          ["ID", "Subject", "Status", "Due Date", "% Complete", "Categories", "Flag Status",
           "Reported Date", "Project", "Activity"],
          groupby=[("Project", "asc"), ("Activity", "asc")]),
    table("PROJECT", "Project", 215304044,
          ["ID", "Subject", "Activity", "Project", "Status", "Due Date", "Categories",
           "Reported Date", "Reported By", "Flag Status"],
          groupby=[("Project", "asc")], orderby=[("ReportedIDHidden", "asc")],
          # Text left behind the document's end; the host takes the document as it stands.
          tail="iew>\r\n"),
    table("ACTIVITY", "Activity", 215304055,
          ["ID", "Subject", "Project", "Activity", "Status", "Due Date", "Categories",
           "Reported Date"],
          groupby=[("Activity", "asc")], orderby=[("ReportedIDHidden", "asc")]),
    table("REPORTED_DATE_(FILTERED)", "Reported Date (Filtered)", 215304066,
          ["ID", "Subject", "Project", "Activity", "Reported Date", "Status", "Due Date",
           "Categories", "Flag Status"],
          filter=REPORTED_DATE_SET, groupby=[("Reported Date (text)", "desc")],
          orderby=[("ReportedIDHidden", "asc")]),
    table("DUE_DATE", "Due Date", 215304077,
          ["ID", "Subject", "Project", "Activity", "Due Date", "% Complete", "Categories",
           "Flag Status"],
          filter="", groupby=[("Due Date", "asc")], orderby=[("Flag Status", "desc")],
          previewpane=False),
    table("ITEMS_WITHOUT_PROJECT_(FILTERED)", "Items without Project (Filtered)", 215304088,
          ["Subject", "Activity", "Status", "Due Date", "% Complete", "Categories", "Flag Status"],
          filter=NO_PROJECT, orderby=[("Due Date", "asc")], persistgroups=False),
    table("ITEMS_WITHOUT_ACTIVITY_(FILTERED)", "Items without Activity (Filtered)", 215304099,
          ["Subject", "Status", "Due Date", "% Complete", "Categories", "Project", "Flag Status"],
          filter=NO_ACTIVITY, orderby=[("Due Date", "asc")], persistgroups=False),
    table("ITEMS_WITHOUT_PROJECT_AND_ACTIVITY_(FILTERED)",
          "Items Without Project and Activity (Filtered)", 215304110,
          ["Subject", "Status", "Due Date", "% Complete", "Categories", "Flag Status"],
          filter=NO_BOTH, orderby=[("Due Date", "asc")]),
    table("REPORTED_ITEMS_(FILTERED)", "Reported Items (Filtered)", 215304121,
          ["ID", "Subject", "Project", "Activity", "Reported Date", "Due Date", "Categories",
           "Flag Status"],
          filter=REPORTED_TASK, groupby=[("Project", "asc")],
          orderby=[("Reported Date", "asc")], editable=["Reported Date"]),
    table("UNREPORTED_ITEMS_(FILTERED)", "Unreported Items (Filtered)", 215304132,
          ["Subject", "Project", "Activity", "Status", "Due Date", "% Complete", "Categories",
           "Flag Status"],
          filter=UNREPORTED, groupby=[("Project", "asc")], orderby=[("Due Date", "asc")]),
    calendar("CALENDAR_VIEW_OF_REPORTED_ITEMS_(FILTERED)",
             "Calendar view of Reported Items (Filtered)", 215304143, REPORTED_TASK),
    calendar("CALENDAR_VIEW_OF_UNREPORTED_ITEMS_(FILTERED)",
             "Calendar view of Unreported Items (Filtered)", 215304154, UNREPORTED,
             empty_styles=True),
]

LEAD = {"appointment": ["HREF", "Icon", "Attachment"],
        "task": ["HREF", "Icon", "Priority", "Attachment"]}


class Writer:
    def __init__(self):
        self.lines = ['<?xml version="1.0"?>']
        self.depth = 0

    def open(self, tag, attributes=""):
        self.lines.append("\t" * self.depth + "<" + tag + attributes + ">")
        self.depth += 1

    def close(self, tag):
        self.depth -= 1
        self.lines.append("\t" * self.depth + "</" + tag + ">")

    def element(self, tag, value):
        self.lines.append("\t" * self.depth + "<" + tag + ">" + str(value) + "</" + tag + ">")

    def text(self):
        return "\r\n".join(self.lines) + "\r\n"


def collapsestate(viewtime):
    return "%08X%08X00000000" % (viewtime, viewtime ^ 0x5A5A5A5A)


def write_column(w, heading, view):
    fields = dict(COLUMNS[heading])
    fields.update(view.get("overrides", {}).get(heading, {}))
    user_property = fields.pop("user", False)
    if heading != "HREF":
        fields["heading"] = heading
        fields["style"] = CENTER if heading in NARROW else LEFT
        if heading in view.get("editable", ()):
            fields["editable"] = 1
    if user_property:
        fields["userheading"] = heading
    w.open("column")
    for key in COLUMN_ORDER:
        if key in fields:
            w.element(key, fields[key])
    w.close("column")


def write_orders(w, tag, keys):
    w.open(tag)
    for heading, sort in keys:
        prop, kind, user_property = KEYS[heading]
        shown = "Reported Date" if heading == "Reported Date (text)" else heading
        w.open("order")
        w.element("heading", shown)
        w.element("prop", prop)
        w.element("type", kind)
        if user_property:
            w.element("userheading", shown)
        w.element("sort", sort)
        w.close("order")
    w.close(tag)


def write_table(w, view, lead):
    w.open("view", ' type="table"')
    w.element("viewname", view["viewname"])
    w.element("viewstyle", VIEWSTYLE)
    w.element("viewtime", view["viewtime"])
    w.element("linecolor", 8421504)
    w.element("linestyle", 3)
    w.open("multiline")
    w.element("width", 0)
    w.close("multiline")
    w.element("gridlines", 1)
    w.element("newitemrow", 1)
    w.element("incelledit", 1)
    w.element("collapsestate", collapsestate(view["viewtime"]))
    w.element("rowstyle", "background-color:window;color:windowtext")
    w.element("headerstyle", "background-color:#D3D3D3")
    w.open("arrangement")
    w.element("autogroup", 0)
    if view["persistgroups"]:
        w.element("persistgroups", 1)
    w.element("collapseclient", "")
    w.close("arrangement")
    if view["filter"] is not None:
        w.element("filter", view["filter"])
    for heading in lead + view["columns"]:
        write_column(w, heading, view)
    if view["groupby"]:
        write_orders(w, "groupby", view["groupby"])
    if view["orderby"]:
        write_orders(w, "orderby", view["orderby"])
    w.element("groupbydefault", 2)
    if view["previewpane"]:
        w.open("previewpane")
        w.element("markasread", 0)
        w.close("previewpane")
    w.close("view")


def write_calendar(w, view, folder):
    task = folder == "task"
    w.open("view", ' type="calendar"')
    w.element("viewname", view["viewname"])
    w.element("filter", view["filter"])
    w.element("viewstyle", VIEWSTYLE)
    w.element("viewtime", view["viewtime"])
    if task:
        w.element("showfullweek", 1)
        w.element("showworkweek", 0)
    w.element("mode", 2 if task else 4)
    w.element("daymode", 5)
    w.element("splitterwidth", -1)
    w.element("splitterheight", -1)
    w.element("displaytimeunits", 30)
    w.element("taskfilter", 0 if task else 1)
    if task:
        w.element("taskpad", 0)
        w.element("noboldcalendardays", 1)
    w.element("includenodue", 1)
    w.element("lunarinfotype", 0)
    w.element("rokuyou", 0)
    w.element("startfield", TASK_ID + "81040040" if task else "urn:schemas:calendar:dtstart")
    w.element("endfield", TASK_ID + "81050040" if task else "urn:schemas:calendar:dtend")
    w.element("calendarstyle", "font-size:16pt")
    if view["empty_styles"]:
        for tag in ("daystyle", "weekstyle", "monthstyle"):
            w.element(tag, "")
    w.open("previewpane")
    w.element("markasread", 0)
    w.close("previewpane")
    if not task:
        w.open("embeddedview", ' type="table"')
        for heading in ("HREF", "Icon"):
            write_column(w, heading, {})
        w.open("column")
        for key, value in [("heading", "Complete"), ("prop", TASK_ID + "811c000b"),
                           ("type", "boolean"), ("format", "boolicon"), ("bitmap", 1),
                           ("width", 18), ("style", CENTER), ("editable", 1)]:
            w.element(key, value)
        w.close("column")
        w.open("column")
        for key, value in [("heading", "TaskPad"), ("prop", "urn:schemas:httpmail:subject"),
                           ("type", "string"), ("width", 160), ("style", LEFT),
                           ("editable", 1)]:
            w.element(key, value)
        w.close("column")
        w.close("embeddedview")
    w.close("view")


def main():
    for folder, views in (("appointment", APPOINTMENT), ("task", TASK)):
        for view in views:
            w = Writer()
            if view["kind"] == "table":
                write_table(w, view, LEAD[folder])
            else:
                write_calendar(w, view, folder)
            path = os.path.join(ROOT, folder, view["name"] + ".xml")
            with open(path, "wb") as f:
                f.write((w.text() + view.get("tail", "")).encode("ascii"))
    return 0


if __name__ == "__main__":
    sys.exit(main())
