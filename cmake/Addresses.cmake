# Where the people behind a build can be reached. They are set when it is configured
# (-DNERLO_SUPPORT_PAGE=https://...); what is not set is greyed in the menus.
set(NERLO_HOME_PAGE "" CACHE STRING "Web page of the project")
set(NERLO_SUPPORT_PAGE "" CACHE STRING "Web page of the item Support")
set(NERLO_RATE_PAGE "" CACHE STRING "Web page of the item Rate Nerlo Pro")
set(NERLO_EMAIL "" CACHE STRING "Mail address of the developers")
