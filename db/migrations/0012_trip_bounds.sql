-- Trips arrive from phones and other devices: the row holds only what a journey can be, and it
-- names only projects, tasks and clients its owner can see.

alter table public.trips
    add constraint trips_start_point_in_range check (
        (start_lat is null or start_lat between -90 and 90) and (start_lng is null or start_lng between -180 and 180)),
    add constraint trips_end_point_in_range check (
        (end_lat is null or end_lat between -90 and 90) and (end_lng is null or end_lng between -180 and 180)),
    -- Longer than any road on Earth is a broken figure, not a trip.
    add constraint trips_distance_bounded check (distance_m <= 40000000),
    add constraint trips_texts_bounded check (
        coalesce(length(start_label), 0) <= 500 and coalesce(length(end_label), 0) <= 500
        and coalesce(length(purpose), 0) <= 2000),
    add constraint trips_route_bounded check (coalesce(length(route), 0) <= 1000000);

-- Restrictive: added to the owner's policy, not instead of it. The look-ups run under the caller's
-- own row security, so a project, task or client of someone else does not exist for them; without
-- this a trip could point at another user's project and be charged on that project's invoice
-- figures.
create policy "trips name only what their owner sees" on public.trips as restrictive for insert to authenticated
    with check ((project_id is null or exists (select 1 from public.projects p where p.id = trips.project_id))
                and (task_id is null or exists (select 1 from public.tasks t where t.id = trips.task_id))
                and (client_id is null or exists (select 1 from public.clients c where c.id = trips.client_id)));
create policy "trips keep naming only what their owner sees" on public.trips as restrictive for update
    to authenticated
    using (true)
    with check ((project_id is null or exists (select 1 from public.projects p where p.id = trips.project_id))
                and (task_id is null or exists (select 1 from public.tasks t where t.id = trips.task_id))
                and (client_id is null or exists (select 1 from public.clients c where c.id = trips.client_id)));
