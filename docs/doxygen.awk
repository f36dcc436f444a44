# Makes of a document what Doxygen reads: headings that can be linked to, and links between the documents. The name of a
# heading is that of its document and what a link to it has behind the "#".

function slug(text) {
  text = tolower(text)
  gsub(/[^a-z0-9 _-]/, "", text)
  gsub(/ /, "-", text)
  return text
}

function without_folder(path) {
  sub(/.*\//, "", path)
  sub(/\.md$/, "", path)
  return path
}

# What stands between the parentheses of a link. Empty for what has no page.
function target(link, parts) {
  if (link ~ /^#/) return "#" document "_" substr(link, 2)
  if (link ~ /^https?:|\.svg$/) return link
  if (link ~ /\.png$/) { sub(/.*\//, "", link); return link }
  split(link, parts, "#")
  if (parts[1] !~ /\.md$/ || parts[1] ~ /(README|CONTRIBUTING)\.md$/) return ""
  return "@ref " without_folder(parts[1]) (parts[2] == "" ? "" : "_" parts[2])
}

# The front page has every other page below it.
function link_of(text, link) {
  link = target(link)
  if (link == "") return text
  if (document == "index" && link ~ /^@ref [^_]*$/) return "@subpage " substr(link, 6) " \"" text "\""
  # The text of such a link is not read as Markdown.
  if (link ~ /^[#@]/) gsub(/`/, "", text)
  return "[" text "](" link ")"
}

function with_links(line, done, text) {
  done = ""
  while (match(line, /\[[^]]*\]\([^)]*\)/)) {
    text = substr(line, RSTART + 1, RLENGTH - 2)
    done = done substr(line, 1, RSTART - 1)
    line = substr(line, RSTART + RLENGTH)
    split(text, part, /\]\(/)
    done = done link_of(part[1], part[2])
  }
  return done line
}

# Doxygen takes `a quoted' word as quotes, so that code with a single quote needs two backticks on each side.
function with_code(line, done, code) {
  if (line ~ /``/) return line
  done = ""
  while (match(line, /`[^`]+`/)) {
    code = substr(line, RSTART, RLENGTH)
    done = done substr(line, 1, RSTART - 1) (code ~ /'/ ? "`" code "`" : code)
    line = substr(line, RSTART + RLENGTH)
  }
  return done line
}

BEGIN { document = without_folder(ARGV[1]) }
/^```/ { inCode = !inCode }
inCode || /^```/ { print; next }
/^# / { print $0 (document == "index" ? "" : " {#" document "}"); next }
/^##+ / {
  heading = $0
  sub(/^#+ /, "", heading)
  gsub(/`/, "")  # which would be shown
  print $0 " {#" document "_" slug(heading) "}"
  next
}
{ print with_code(with_links($0)) }
