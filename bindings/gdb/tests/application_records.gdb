set print pretty on
print application
print statistics
print response
print nothing
print *pointer
print routes.ipv4_routes[49]
set print elements 2
print routes
