-- Who may read and write which rows.
--
-- Policies never query a protected table directly: they call the helpers below, which are
-- SECURITY DEFINER and so read past row-level security. That keeps a policy on team_members that
-- asks about team_members (or projects asking about teams asking about members) from recursing.
-- The helpers return sets, used as `col in (select app.x())`, so the planner evaluates each once per
-- statement instead of once per row.
--
-- Team roles: the team's creator (teams.owner_id) and members with role 'owner' are owners; editors
-- change the team's data and invite; viewers, and invitations not yet accepted, only read.

create or replace function app.my_team_roles() returns table (team_id uuid, role text)
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select t.id, 'owner'::text from public.teams t where t.owner_id = auth.uid()
    union
    select m.team_id, m.role from public.team_members m where m.user_id = auth.uid()
$$;

create or replace function app.team_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select r.team_id from app.my_team_roles() r
$$;

create or replace function app.editable_team_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select r.team_id from app.my_team_roles() r where r.role in ('owner', 'editor')
$$;

create or replace function app.owned_team_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select r.team_id from app.my_team_roles() r where r.role = 'owner'
$$;

-- The strongest role the caller holds in a team, null for outsiders.
create or replace function app.team_role(p_team_id uuid) returns text
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select r.role
    from app.my_team_roles() r
    where r.team_id = p_team_id
    order by array_position(array['owner', 'editor', 'viewer'], r.role)
    limit 1
$$;

create or replace function app.teammate_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select m.user_id from public.team_members m where m.team_id in (select app.team_ids())
    union
    select t.owner_id from public.teams t where t.id in (select app.team_ids())
$$;

create or replace function app.readable_project_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select p.id from public.projects p
    where p.user_id = auth.uid() or p.team_id in (select app.team_ids())
$$;

-- Project admins: the creator, and the owners and editors of the project's team.
create or replace function app.writable_project_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select p.id from public.projects p
    where p.user_id = auth.uid() or p.team_id in (select app.editable_team_ids())
$$;

create or replace function app.readable_invoice_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select i.id from public.invoices i
    where i.user_id = auth.uid() or i.team_id in (select app.team_ids())
$$;

create or replace function app.writable_invoice_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select i.id from public.invoices i
    where i.user_id = auth.uid() or i.team_id in (select app.editable_team_ids())
$$;

-- For UPDATE ... WITH CHECK: the owner and team a row has before the update. A STABLE function
-- reads with the statement's snapshot, which does not include the row version being written, so
-- the check can compare new values with stored ones (a policy has no OLD).
create or replace function app.stored_owner(p_table text, p_id uuid) returns uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select case p_table
        when 'projects' then (select x.user_id from public.projects x where x.id = p_id)
        when 'tasks' then (select x.user_id from public.tasks x where x.id = p_id)
        when 'time_entries' then (select x.user_id from public.time_entries x where x.id = p_id)
        when 'clients' then (select x.user_id from public.clients x where x.id = p_id)
        when 'invoice_templates' then (select x.user_id from public.invoice_templates x where x.id = p_id)
        when 'invoices' then (select x.user_id from public.invoices x where x.id = p_id)
    end
$$;

create or replace function app.stored_team(p_table text, p_id uuid) returns uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select case p_table
        when 'projects' then (select x.team_id from public.projects x where x.id = p_id)
        when 'clients' then (select x.team_id from public.clients x where x.id = p_id)
        when 'invoice_templates' then (select x.team_id from public.invoice_templates x where x.id = p_id)
        when 'invoices' then (select x.team_id from public.invoices x where x.id = p_id)
    end
$$;

revoke all on function app.my_team_roles(), app.team_ids(), app.editable_team_ids(), app.owned_team_ids(),
    app.team_role(uuid), app.teammate_ids(), app.readable_project_ids(), app.writable_project_ids(),
    app.readable_invoice_ids(), app.writable_invoice_ids(), app.stored_owner(text, uuid),
    app.stored_team(text, uuid) from public;
grant execute on function app.my_team_roles(), app.team_ids(), app.editable_team_ids(), app.owned_team_ids(),
    app.team_role(uuid), app.teammate_ids(), app.readable_project_ids(), app.writable_project_ids(),
    app.readable_invoice_ids(), app.writable_invoice_ids(), app.stored_owner(text, uuid),
    app.stored_team(text, uuid) to authenticated, service_role;

-- profiles: display names show on team views, so teammates read each other's profile.
create policy "read own and teammates' profiles" on public.profiles for select to authenticated
    using (id = (select auth.uid()) or id in (select app.teammate_ids()));
create policy "create own profile" on public.profiles for insert to authenticated
    with check (id = (select auth.uid()));
create policy "update own profile" on public.profiles for update to authenticated
    using (id = (select auth.uid()))
    with check (id = (select auth.uid()));

-- teams
create policy "members read their teams" on public.teams for select to authenticated
    using (owner_id = (select auth.uid()) or id in (select app.team_ids()));
create policy "create own teams" on public.teams for insert to authenticated
    with check (owner_id = (select auth.uid()));
create policy "owner updates team" on public.teams for update to authenticated
    using (owner_id = (select auth.uid()))
    with check (owner_id = (select auth.uid()));
create policy "owner deletes team" on public.teams for delete to authenticated
    using (owner_id = (select auth.uid()));

-- team_members: editors may invite, but never as owner; a member may always leave.
create policy "members read their team's members" on public.team_members for select to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.team_ids()));
create policy "owners and editors add members" on public.team_members for insert to authenticated
    with check (team_id in (select app.owned_team_ids())
                or (role <> 'owner' and team_id in (select app.editable_team_ids())));
create policy "owners change members" on public.team_members for update to authenticated
    using (team_id in (select app.owned_team_ids()))
    with check (team_id in (select app.owned_team_ids()));
create policy "owners remove members, members leave" on public.team_members for delete to authenticated
    using (team_id in (select app.owned_team_ids()) or user_id = (select auth.uid()));

-- projects, clients, invoice templates and invoices share one shape: own rows, plus team rows for
-- members (read) and owners/editors (write). On update the owner stays as stored and a row can only
-- enter a team the caller edits; staying in its current team is always fine, so a creator who is
-- now a viewer of that team keeps full rights on their own project.
create policy "read own and team projects" on public.projects for select to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.team_ids()));
create policy "create own projects" on public.projects for insert to authenticated
    with check (user_id = (select auth.uid())
                and (team_id is null or team_id in (select app.editable_team_ids())));
create policy "creator and team editors update projects" on public.projects for update to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
    with check (user_id = app.stored_owner('projects', id)
                and (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
                and (team_id is null or team_id in (select app.editable_team_ids())
                     or team_id = app.stored_team('projects', id)));
create policy "creator and team editors delete projects" on public.projects for delete to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()));

create policy "read own and team clients" on public.clients for select to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.team_ids()));
create policy "create own clients" on public.clients for insert to authenticated
    with check (user_id = (select auth.uid())
                and (team_id is null or team_id in (select app.editable_team_ids())));
create policy "owner and team editors update clients" on public.clients for update to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
    with check (user_id = app.stored_owner('clients', id)
                and (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
                and (team_id is null or team_id in (select app.editable_team_ids())
                     or team_id = app.stored_team('clients', id)));
create policy "owner and team editors delete clients" on public.clients for delete to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()));

create policy "read own and team templates" on public.invoice_templates for select to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.team_ids()));
create policy "create own templates" on public.invoice_templates for insert to authenticated
    with check (user_id = (select auth.uid())
                and (team_id is null or team_id in (select app.editable_team_ids())));
create policy "owner and team editors update templates" on public.invoice_templates for update to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
    with check (user_id = app.stored_owner('invoice_templates', id)
                and (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
                and (team_id is null or team_id in (select app.editable_team_ids())
                     or team_id = app.stored_team('invoice_templates', id)));
create policy "owner and team editors delete templates" on public.invoice_templates for delete to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()));

create policy "read own and team invoices" on public.invoices for select to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.team_ids()));
create policy "create own invoices" on public.invoices for insert to authenticated
    with check (user_id = (select auth.uid())
                and (team_id is null or team_id in (select app.editable_team_ids())));
create policy "owner and team editors update invoices" on public.invoices for update to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
    with check (user_id = app.stored_owner('invoices', id)
                and (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()))
                and (team_id is null or team_id in (select app.editable_team_ids())
                     or team_id = app.stored_team('invoices', id)));
create policy "owner and team editors delete invoices" on public.invoices for delete to authenticated
    using (user_id = (select auth.uid()) or team_id in (select app.editable_team_ids()));

-- tasks and time entries follow their project. A row's owner keeps writing it even without admin
-- rights on the project, but may only move it to a project they can at least read, so nobody can
-- plant rows in a stranger's project. Teammates log time for each other (user_id is the person,
-- logged_by_user_id the one who logged it).
create policy "read own tasks and tasks of readable projects" on public.tasks for select to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.readable_project_ids()));
create policy "project admins create tasks" on public.tasks for insert to authenticated
    with check (user_id = (select auth.uid()) and project_id in (select app.writable_project_ids()));
create policy "owner and project admins update tasks" on public.tasks for update to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.writable_project_ids()))
    with check (user_id = app.stored_owner('tasks', id)
                and (project_id in (select app.writable_project_ids())
                     or (user_id = (select auth.uid()) and project_id in (select app.readable_project_ids()))));
create policy "owner and project admins delete tasks" on public.tasks for delete to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.writable_project_ids()));

create policy "read own entries and entries of readable projects" on public.time_entries for select to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.readable_project_ids()));
create policy "project admins log time" on public.time_entries for insert to authenticated
    with check ((user_id = (select auth.uid()) or logged_by_user_id = (select auth.uid()))
                and project_id in (select app.writable_project_ids()));
create policy "owner and project admins update entries" on public.time_entries for update to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.writable_project_ids()))
    with check (user_id = app.stored_owner('time_entries', id)
                and (project_id in (select app.writable_project_ids())
                     or (user_id = (select auth.uid()) and project_id in (select app.readable_project_ids()))));
create policy "owner and project admins delete entries" on public.time_entries for delete to authenticated
    using (user_id = (select auth.uid()) or project_id in (select app.writable_project_ids()));

-- Lines and links follow their invoice. Linking also needs the right to change the entry (its owner
-- or an admin of its project; a trip is only ever visible to its owner): otherwise anyone could block
-- time from being billed by linking it first, a team's viewer included, on an invoice of their own
-- whose link the entry's owner can neither see nor remove.
create policy "read lines of readable invoices" on public.invoice_lines for select to authenticated
    using (invoice_id in (select app.readable_invoice_ids()));
create policy "add lines to writable invoices" on public.invoice_lines for insert to authenticated
    with check (invoice_id in (select app.writable_invoice_ids()));
create policy "change lines of writable invoices" on public.invoice_lines for update to authenticated
    using (invoice_id in (select app.writable_invoice_ids()))
    with check (invoice_id in (select app.writable_invoice_ids()));
create policy "remove lines of writable invoices" on public.invoice_lines for delete to authenticated
    using (invoice_id in (select app.writable_invoice_ids()));

create policy "read entry links of readable invoices" on public.invoice_entries for select to authenticated
    using (invoice_id in (select app.readable_invoice_ids()));
create policy "link changeable entries to writable invoices" on public.invoice_entries for insert to authenticated
    with check (invoice_id in (select app.writable_invoice_ids())
                and exists (select 1 from public.time_entries te
                            where te.id = invoice_entries.time_entry_id
                              and (te.user_id = (select auth.uid())
                                   or te.project_id in (select app.writable_project_ids()))));
create policy "change entry links of writable invoices" on public.invoice_entries for update to authenticated
    using (invoice_id in (select app.writable_invoice_ids()))
    with check (invoice_id in (select app.writable_invoice_ids())
                and exists (select 1 from public.time_entries te
                            where te.id = invoice_entries.time_entry_id
                              and (te.user_id = (select auth.uid())
                                   or te.project_id in (select app.writable_project_ids()))));
create policy "remove entry links of writable invoices" on public.invoice_entries for delete to authenticated
    using (invoice_id in (select app.writable_invoice_ids()));

create policy "read trip links of readable invoices" on public.invoice_trips for select to authenticated
    using (invoice_id in (select app.readable_invoice_ids()));
create policy "link visible trips to writable invoices" on public.invoice_trips for insert to authenticated
    with check (invoice_id in (select app.writable_invoice_ids())
                and exists (select 1 from public.trips t where t.id = invoice_trips.trip_id));
create policy "change trip links of writable invoices" on public.invoice_trips for update to authenticated
    using (invoice_id in (select app.writable_invoice_ids()))
    with check (invoice_id in (select app.writable_invoice_ids())
                and exists (select 1 from public.trips t where t.id = invoice_trips.trip_id));
create policy "remove trip links of writable invoices" on public.invoice_trips for delete to authenticated
    using (invoice_id in (select app.writable_invoice_ids()));

-- trips are private, team or not.
create policy "owner manages trips" on public.trips for all to authenticated
    using (user_id = (select auth.uid()))
    with check (user_id = (select auth.uid()));
